// How the table looks: its cloth, checks, dice and lettering. No rule reads it.
#pragma once

#include <cstdint>
#include <string>

#include "base/fields.h"

namespace tessaryn {

inline constexpr int kCheckColors = 7;  // 1 to 6 by denomination, 6 the "$" check

// Colours are 0xRRGGBB.
struct Looks {
  std::uint32_t Cloth = 0x0C5C3A;
  std::uint32_t Lettering = 0xFAF6E8;
  std::uint32_t Rail = 0x5C361C;
  std::uint32_t Room = 0x262220;  // round the table
  int Texture = 0;                // of the cloth: 0 plain to 100, a coarse weave
  int Spotlight = 50;             // over the middle: 0 none to 100
  std::uint32_t Dice[2] = {0xC41820, 0xC41820};
  std::uint32_t Pips = 0xFFFFFF;
  std::uint32_t Checks[kCheckColors] = {0, 0xECECE8, 0xBE1E26, 0x12703C, 0x1E1E22, 0x6A2C90, 0xDEA028};
  std::string LetteringFont;  // a family; empty: the program's own
};
TESSARYN_FIELDS(Looks, Cloth, Lettering, Rail, Room, Texture, Spotlight, Dice, Pips, Checks, LetteringFont)

}  // namespace tessaryn
