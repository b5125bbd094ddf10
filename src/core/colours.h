#pragma once
// The program's colour numbers: 0xBBGGRR (blue in the high byte), or a system colour, which the
// windows map to the palette of the machine.
#include <cstdint>

namespace orrivane::colours {

inline constexpr std::uint32_t kScrollBars = 0x80000000;        // system colour: the face of a scroll bar
inline constexpr std::uint32_t kWindowBackground = 0x80000005;  // system colour: the face of a text box
inline constexpr std::uint32_t kActiveTitleText = 0x80000009;  // system colour: the text of an active title bar
inline constexpr std::uint32_t kButtonFace = 0x8000000F;        // system colour: the face of a button
inline constexpr std::uint32_t kGrayText = 0x80000011;          // system colour: grey (disabled) text
inline constexpr std::uint32_t kButtonText = 0x80000012;        // system colour: the text of a button
inline constexpr std::uint32_t kRed = 255;

}  // namespace orrivane::colours
