#include "core/text.h"

#include <algorithm>
#include <cctype>

#include "core/runtime_failure.h"
#include "core/value.h"

namespace orrivane::text {

namespace {

void Require_Length(long long length) {
  if (length < 0) throw RuntimeFailure(kInvalidProcedureCall);
}

void Require_Start(long long start) {
  if (start < 1) throw RuntimeFailure(kInvalidProcedureCall);
}

}  // namespace

std::string Left(std::string_view s, long long length) {
  Require_Length(length);
  return std::string(s.substr(0, static_cast<std::size_t>(std::min<long long>(length, Len(s)))));
}

std::string Right(std::string_view s, long long length) {
  Require_Length(length);
  const long long n = std::min<long long>(length, Len(s));
  return std::string(s.substr(s.size() - static_cast<std::size_t>(n)));
}

std::string Mid(std::string_view s, long long start) {
  Require_Start(start);
  if (start > Len(s)) return {};
  return std::string(s.substr(static_cast<std::size_t>(start - 1)));
}

std::string Mid(std::string_view s, long long start, long long length) {
  Require_Start(start);
  Require_Length(length);
  if (start > Len(s)) return {};
  return std::string(s.substr(static_cast<std::size_t>(start - 1), static_cast<std::size_t>(length)));
}

long long InStr(std::string_view s, std::string_view find, long long start) {
  Require_Start(start);
  if (s.empty() || start > Len(s) + 1) return 0;
  const auto at = s.find(find, static_cast<std::size_t>(start - 1));
  return at == std::string_view::npos ? 0 : static_cast<long long>(at) + 1;
}

long long InStrRev(std::string_view s, std::string_view find) {
  if (s.empty()) return 0;
  const auto at = s.rfind(find);
  return at == std::string_view::npos ? 0 : static_cast<long long>(at) + 1;
}

long long Len(std::string_view s) { return static_cast<long long>(s.size()); }

std::string LTrim(std::string_view s) {
  const auto first = s.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string() : std::string(s.substr(first));
}

std::string RTrim(std::string_view s) {
  const auto last = s.find_last_not_of(' ');
  return last == std::string_view::npos ? std::string() : std::string(s.substr(0, last + 1));
}

std::string Trim(std::string_view s) { return LTrim(RTrim(s)); }

std::string UCase(std::string_view s) {
  std::string out(s);
  std::transform(out.begin(), out.end(), out.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return out;
}

std::string LCase(std::string_view s) {
  std::string out(s);
  std::transform(out.begin(), out.end(), out.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return out;
}

namespace {

// Blanks, tabs and line feeds are no part of a number for Val, wherever they stand.
bool Is_Ignored_By_Val(char c) { return c == ' ' || c == '\t' || c == '\n'; }
bool Is_Digit(char c) { return c >= '0' && c <= '9'; }

std::size_t Skip_Digits(std::string_view s, std::size_t i) {
  while (i < s.size() && Is_Digit(s[i])) ++i;
  return i;
}

std::size_t Skip_Sign(std::string_view s, std::size_t i) {
  return i < s.size() && (s[i] == '+' || s[i] == '-') ? i + 1 : i;
}

// The longest head of `s` shaped as a number: sign, digits, point, digits, exponent.
std::string_view Number_Head(std::string_view s) {
  const std::size_t sign_end = Skip_Sign(s, 0);
  std::size_t i = Skip_Digits(s, sign_end);
  const bool has_point = i < s.size() && s[i] == '.';
  if (has_point) i = Skip_Digits(s, i + 1);
  if (i - sign_end == static_cast<std::size_t>(has_point)) return {};  // no digit at all
  if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
    const std::size_t exponent_start = Skip_Sign(s, i + 1);
    const std::size_t exponent_end = Skip_Digits(s, exponent_start);
    if (exponent_end > exponent_start) i = exponent_end;
  }
  return s.substr(0, i);
}

}  // namespace

double Val(std::string_view s) {
  std::string compact;
  for (char c : s) {
    if (!Is_Ignored_By_Val(c)) compact.push_back(c);
  }
  return Parse_Number(Number_Head(compact)).value_or(0);
}

std::string Pad_Zero(long long number, int width) {
  // Negating the smallest long long would overflow; its magnitude fits an unsigned one.
  const unsigned long long magnitude =
      number < 0 ? 0ULL - static_cast<unsigned long long>(number) : static_cast<unsigned long long>(number);
  std::string digits = std::to_string(magnitude);
  if (static_cast<int>(digits.size()) < width) digits.insert(0, width - digits.size(), '0');
  return number < 0 ? "-" + digits : digits;
}

bool Ends_With(std::string_view s, std::string_view tail) {
  return s.size() >= tail.size() && s.substr(s.size() - tail.size()) == tail;
}

std::string With_Extension(std::string_view name, std::string_view extension) {
  std::string full(name);
  if (!Ends_With(name, extension)) full += extension;
  return full;
}

bool Starts_With(std::string_view s, std::string_view head) { return s.substr(0, head.size()) == head; }

std::string One_Line(std::string_view s) {
  std::string out;
  for (char c : s) {
    const char put = (c == '\r' || c == '\n') ? ' ' : c;
    if (put == ' ' && !out.empty() && out.back() == ' ') continue;
    out.push_back(put);
  }
  return out;
}

}  // namespace orrivane::text
