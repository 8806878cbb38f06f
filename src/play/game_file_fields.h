// The fields of a game as a stream of bytes that tells for itself what it holds, so that a table of another
// version, with fields more or fewer, can be read. docs/formats.md has its form.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tessaryn {

struct Game;

// Every field but those of FieldsLeftOut, by the field lists of the state. autosave: with what the table
// belongs to. withScreens: with how the screens are.
std::string EncodeFields(const Game& game, bool autosave, bool withScreens);
// Fields that the stream doesn't have keep their values; those that nobody knows are passed over. False when
// the stream is damaged or a value doesn't fit its field; the game is then good for nothing.
bool DecodeFields(std::string_view stream, Game& game);

// The first field whose value is out of what it may be, as a path; empty when there is none. Looks at each
// value by itself.
std::string FieldOutOfRange(const Game& game);

// What is not kept, as the beginnings of paths (".generators.Ran1").
struct FieldLeftOut {
  std::string_view path;
  std::string_view reason;
};
inline constexpr std::size_t kFieldsLeftOut = 60;
extern const FieldLeftOut kLeftOut[kFieldsLeftOut];

}  // namespace tessaryn
