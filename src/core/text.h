#pragma once
// The text helpers the program's procedures are written with. Positions count from 1, and
// 0 means "not found", as the program counts them; a negative length is the failure
// "Invalid procedure call or argument" (5), which the date and time parsers rely on.
#include <string>
#include <string_view>

namespace orrivane::text {

// The leftmost `length` characters (all of them when the text is shorter).
std::string Left(std::string_view s, long long length);
// The rightmost `length` characters.
std::string Right(std::string_view s, long long length);
// From position `start` on, `length` characters, or to the end when length is negative-free
// and omitted.
std::string Mid(std::string_view s, long long start);
std::string Mid(std::string_view s, long long start, long long length);
// Position of the first occurrence of `find` at or after `start`, else 0 (always 0 in an
// empty text).
long long InStr(std::string_view s, std::string_view find, long long start = 1);
// Position of the last occurrence of `find`, else 0.
long long InStrRev(std::string_view s, std::string_view find);
long long Len(std::string_view s);

std::string Trim(std::string_view s);
std::string LTrim(std::string_view s);
std::string RTrim(std::string_view s);
std::string UCase(std::string_view s);
std::string LCase(std::string_view s);

// The number at the head of a text, as far as it goes, 0 when there is none. Blanks, tabs and
// line feeds are ignored wherever they stand (" 1 2 3" is 123); a number too large to hold is
// the failure 6 (Overflow).
double Val(std::string_view s);

// A whole number as text with at least `width` digits, zeros in front ("05").
std::string Pad_Zero(long long number, int width);

bool Ends_With(std::string_view s, std::string_view tail);
bool Starts_With(std::string_view s, std::string_view head);

// A file name with its extension: `extension` added unless the name already ends in it, compared
// exactly ("week" and ".sdl" give "week.sdl", "week.SDL" gives "week.SDL.sdl").
std::string With_Extension(std::string_view name, std::string_view extension);

// Every carriage return or line feed becomes one blank, then runs of blanks become one.
std::string One_Line(std::string_view s);

}  // namespace orrivane::text
