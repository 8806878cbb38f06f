// Lists of fields. TESSARYN_FIELDS(Type, a, b, ...) names the fields of a plain struct, all of them and in
// their order: a field that is left out doesn't compile. Comparison, the tests and what is kept in files go
// by these lists, so that a new field can't be forgotten anywhere.
//
// Stands beside the struct, in namespace tessaryn. Structs of one value (Currency, BetSet) need none.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <type_traits>
#include <vector>

// The usual way to repeat a macro for each of its arguments: up to 256 of them.
#define TESSARYN_PARENS ()
#define TESSARYN_EXPAND(...) \
  TESSARYN_EXPAND3(TESSARYN_EXPAND3(TESSARYN_EXPAND3(TESSARYN_EXPAND3(__VA_ARGS__))))
#define TESSARYN_EXPAND3(...) \
  TESSARYN_EXPAND2(TESSARYN_EXPAND2(TESSARYN_EXPAND2(TESSARYN_EXPAND2(__VA_ARGS__))))
#define TESSARYN_EXPAND2(...) \
  TESSARYN_EXPAND1(TESSARYN_EXPAND1(TESSARYN_EXPAND1(TESSARYN_EXPAND1(__VA_ARGS__))))
#define TESSARYN_EXPAND1(...) __VA_ARGS__
#define TESSARYN_FOR_EACH(macro, ...) __VA_OPT__(TESSARYN_EXPAND(TESSARYN_FOR_EACH_STEP(macro, __VA_ARGS__)))
#define TESSARYN_FOR_EACH_STEP(macro, first, ...) \
  macro(first) __VA_OPT__(TESSARYN_FOR_EACH_AGAIN TESSARYN_PARENS(macro, __VA_ARGS__))
#define TESSARYN_FOR_EACH_AGAIN() TESSARYN_FOR_EACH_STEP

#define TESSARYN_VISIT_MEMBER(field) visit(#field, &Struct::field);

#define TESSARYN_FIELDS(Type, ...)                                                             \
  inline void RequireEveryField(Type& value) { [[maybe_unused]] auto& [__VA_ARGS__] = value; } \
  template <typename Visit>                                                                    \
  constexpr void ForEachMember(std::type_identity<Type>, Visit&& visit) {                      \
    using Struct = Type;                                                                       \
    TESSARYN_FOR_EACH(TESSARYN_VISIT_MEMBER, __VA_ARGS__)                                      \
  }

namespace tessaryn {

// A part that is not of the value: an open file, a lock, what was made ready and can be made again. A copy
// starts with none, and any two are equal.
template <typename T>
struct Unshared : T {
  using T::operator=;

  Unshared() = default;
  Unshared(const Unshared&) : T() {}
  Unshared(Unshared&&) noexcept = default;
  Unshared& operator=(const Unshared&) = delete;
  Unshared& operator=(Unshared&&) noexcept = default;
  friend bool operator==(const Unshared&, const Unshared&) { return true; }
};

template <typename T>
concept HasFields = requires {
  ForEachMember(std::type_identity<T>{}, [](const char*, auto) {});
};

// Calls visit(name, field) for each field of the value, in their order.
template <typename T, typename Visit>
requires HasFields<std::remove_const_t<T>>
void ForEachField(T& value, Visit&& visit) {
  ForEachMember(std::type_identity<std::remove_const_t<T>>{},
                [&](const char* name, auto member) { visit(name, value.*member); });
}

// Where two values first differ, as a path such as ".BetAmount.cells[43][2]"; empty when they are equal.
template <typename T>
std::string FirstDifference(const T& a, const T& b);

namespace fields {

template <typename T>
inline constexpr bool kIsList = std::is_array_v<T>;
template <typename T, std::size_t kSize>
inline constexpr bool kIsList<std::array<T, kSize>> = true;
template <typename T>
inline constexpr bool kIsList<std::vector<T>> = true;

}  // namespace fields

template <typename T>
std::string FirstDifference(const T& a, const T& b) {
  std::string path;
  if constexpr (HasFields<T>) {
    ForEachMember(std::type_identity<T>{}, [&](const char* name, auto member) {
      if (!path.empty()) return;
      const std::string inner = FirstDifference(a.*member, b.*member);
      if (!inner.empty()) path = "." + std::string(name) + (inner == "." ? "" : inner);
    });
  } else if constexpr (fields::kIsList<T>) {
    if (std::size(a) != std::size(b)) return ".size";
    for (std::size_t i = 0; i < std::size(a) && path.empty(); ++i) {
      const std::string inner = FirstDifference(a[i], b[i]);
      if (!inner.empty()) path = "[" + std::to_string(i) + "]" + (inner == "." ? "" : inner);
    }
  } else if constexpr (std::is_pointer_v<T>) {
    // Where a pointer leads is the outside.
  } else if (!(a == b)) {
    path = ".";
  }
  return path;
}

}  // namespace tessaryn
