// How the table looks: its cloth, checks, dice and lettering. No rule reads it.
#pragma once

#include <cstdint>
#include <string>

#include "base/fields.h"

namespace tessaryn {

inline constexpr int kCheckColors = 7;  // 1 to 6 by denomination, 6 the "$" check

// Colours are 0xRRGGBB.
struct Looks {
  std::uint32_t Cloth = 0x0C5C3B;
  std::uint32_t Lettering = 0xFAF5E1;
  std::uint32_t Rail = 0x3B2416;
  std::uint32_t Room = 0x23282C;  // round the table
  int Texture = 0;                // of the cloth: 0 plain to 100, a coarse weave
  int Spotlight = 50;             // over the middle: 0 none to 100
  std::uint32_t Dice[2] = {0xC8202B, 0xC8202B};
  std::uint32_t Pips = 0xFFFFFF;
  std::uint32_t Checks[kCheckColors] = {0, 0xF4F4F1, 0xC8202B, 0x157A44, 0x202226, 0x6B2FA0, 0xDEA028};
  std::string LetteringFont;  // a family; empty: the program's own
};
TESSARYN_FIELDS(Looks, Cloth, Lettering, Rail, Room, Texture, Spotlight, Dice, Pips, Checks, LetteringFont)

}  // namespace tessaryn
