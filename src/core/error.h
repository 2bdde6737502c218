#pragma once
// Errors carry the number the old runtime or engine used, because handlers
// test those numbers (3186: record locked) and scripts expect them.
#include <stdexcept>
#include <string>

namespace mz {

class Error : public std::runtime_error {
 public:
  Error(int number, const std::string& message)
      : std::runtime_error(message), number_(number) {}
  int number() const { return number_; }

 private:
  int number_;
};

// Runtime error numbers that the core raises.
namespace err {
inline constexpr int kInvalidProcedureCall = 5;
inline constexpr int kOverflow = 6;
inline constexpr int kDivisionByZero = 11;
inline constexpr int kTypeMismatch = 13;
inline constexpr int kInvalidUseOfNull = 94;
}  // namespace err

}  // namespace mz
