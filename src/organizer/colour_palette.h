#pragma once
// The fixed set of task colours that the palette window offers and from which a new task's
// colour is drawn: colour numbers with red in the low byte (0xBBGGRR), in the order of the
// palette's labels, two columns of 25.
#include <array>
#include <cstdint>

namespace orrivane::organizer {

inline constexpr int kPaletteColumns = 2;
inline constexpr int kPaletteRows = 25;
inline constexpr int kPaletteColours = kPaletteColumns * kPaletteRows;

inline constexpr std::array<std::uint32_t, kPaletteColours> kPalette{
    0x000000, 0x404040, 0x808080, 0xC0C0C0, 0xE0E0E0, 0xFFFFFF,            // 0 to 5
    0xC0C0FF, 0x8080FF, 0x0000FF, 0x0000C0, 0x000080, 0x000040,            // 6 to 11
    0x404080, 0x004080, 0x0040C0, 0x0080FF, 0x80C0FF, 0xC0E0FF,            // 12 to 17
    0xC0FFFF, 0x80FFFF, 0x00FFFF, 0x00C0C0, 0x008080, 0x004040, 0x004000,  // 18 to 24
    0x400040, 0x800080, 0xC000C0, 0xF000FF, 0xFF80FF, 0xFFC0FF,            // 25 to 30
    0xFEE2FD, 0xFCEBEC, 0xFFC0C0, 0xFF8080, 0xFF0000, 0xC00000,            // 31 to 36
    0x800000, 0x400000, 0x404000, 0x808000, 0xC0C000, 0xFFFF00,            // 37 to 42
    0xFFFF80, 0xFFFFC0, 0xC0FFC0, 0x80FF80, 0x00FF00, 0x00C000, 0x008000,  // 43 to 49
};

// Light grey: it can be picked by hand, but no new task is given it at random.
inline constexpr int kLightGreyIndex = 3;

// The column and row of a colour's label: the first 25 run down the left column.
constexpr int Palette_Column(int index) { return index / kPaletteRows; }
constexpr int Palette_Row(int index) { return index % kPaletteRows; }

}  // namespace orrivane::organizer
