// The MT19937 recurrence that both support libraries share; they differ in how a seed fills the state.
// A state block is 624 words owned by whoever draws from it, so that two tables never share a sequence.
#pragma once

#include <cstdint>

namespace tessaryn::twister {

inline constexpr int kStateWords = 624;
inline constexpr int kMiddle = 397;
inline constexpr std::uint32_t kUpperBit = 0x80000000u;
inline constexpr std::uint32_t kMatrix = 0x9908b0dfu;

inline std::uint32_t Mix(std::uint32_t upper, std::uint32_t lower) {
  const std::uint32_t joined = (upper & kUpperBit) | (lower & ~kUpperBit);
  return (joined >> 1) ^ (-(lower & 1u) & kMatrix);
}

inline std::uint32_t Temper(std::uint32_t word) {
  word ^= word >> 11;
  word ^= (word << 7) & 0x9d2c5680u;
  word ^= (word << 15) & 0xefc60000u;
  return word ^ (word >> 18);
}

// Moves the state on by 624 numbers and leaves them in out. The loops are split where the recurrence wraps,
// so that each runs without a modulo and several words at a time.
inline void NextBlock(std::uint32_t* state, std::uint32_t* __restrict out) {
  constexpr int kWrap = kStateWords - kMiddle;
  for (int i = 0; i < kWrap; ++i) state[i] = state[i + kMiddle] ^ Mix(state[i], state[i + 1]);
  for (int i = kWrap; i < kStateWords - 1; ++i) state[i] = state[i - kWrap] ^ Mix(state[i], state[i + 1]);
  state[kStateWords - 1] = state[kMiddle - 1] ^ Mix(state[kStateWords - 1], state[0]);
  for (int i = 0; i < kStateWords; ++i) out[i] = Temper(state[i]);
}

// What the plain exports draw from: one of these a thread.
struct PlainStream {
  std::uint32_t State[kStateWords];
  std::uint32_t Numbers[kStateWords];
  int Next = -1;  // -1: never seeded; kStateWords: all of Numbers is used up
};

inline double NextReal(PlainStream& stream) {
  if (stream.Next == kStateWords) {
    NextBlock(stream.State, stream.Numbers);
    stream.Next = 0;
  }
  return stream.Numbers[stream.Next++] * (1.0 / 4294967296.0);
}

}  // namespace tessaryn::twister
