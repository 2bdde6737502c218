#pragma once
// Key codes as the screens' handlers test them.
namespace mz::ui::key {
inline constexpr int kBackspace = 8;
inline constexpr int kTab = 9;
inline constexpr int kEnter = 13;
inline constexpr int kEscape = 27;
inline constexpr int kUp = 38;
inline constexpr int kDown = 40;
inline constexpr int kF1 = 112;  // F1 .. F12 follow in order
inline constexpr int kF12 = 123;
}  // namespace mz::ui::key
