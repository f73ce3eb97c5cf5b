// The arithmetic and text conversions of the old runtime that the game's rules depend on.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vb {

// A run-time error of the old runtime: its number and its Portuguese message. Nothing inside the
// game catches it; the desktop front reports it and ends the program.
class RuntimeError : public std::runtime_error {
 public:
  RuntimeError(int number, const std::string& message);
  explicit RuntimeError(int number);  // the standard message of that number
  int number() const { return number_; }

 private:
  int number_;
};

// Error numbers the game can meet.
namespace err {
inline constexpr int kInvalidCall = 5;           // "Chamada de procedimento ou argumento inválido"
inline constexpr int kOverflow = 6;              // "Estouro"
inline constexpr int kSubscript = 9;             // "Subscrito fora do intervalo"
inline constexpr int kArrayElement = 340;        // "O elemento da matriz de controle não existe"
inline constexpr int kObjectRequired = 424;      // "Objeto necessário"
inline constexpr int kElementNotFound = 35601;   // "Elemento não encontrado"
inline constexpr int kIndexOutOfBounds = 35600;  // "Índice fora dos limites"
}  // namespace err

std::string ErrorMessage(int number);
[[noreturn]] void Raise(int number);

// Int(): the floor, also of negative numbers (Int(-7 / 50) is -1).
double Int(double x);

// Conversions that round halves to the even neighbour and raise Overflow when out of range.
std::uint8_t CByte(double x);
std::int16_t CInt(double x);
std::int32_t CLng(double x);

// Val(): the leading number of a text; blanks are skipped, a comma ends the number, "" is 0.
double Val(std::string_view text);

// Format(value, "##,###,##0.00") and Format(value, "#,##0.00"): at least one integer digit,
// groups of three, exactly two decimals, halves rounded away from zero.
std::string FormatMoney(double value);

// The text of a number as the runtime writes it: a Single with up to seven significant digits
// ("0.6484358"), a whole number plainly ("4", "-12").
std::string SingleText(float value);
std::string LongText(std::int64_t value);

// A 16-bit signed variable: reads widen to 32 bits, a write out of range raises Overflow.
class Integer {
 public:
  constexpr Integer() = default;
  Integer(std::int64_t v) : v_(Check(v)) {}  // NOLINT: assignment from whole numbers is the point
  operator std::int32_t() const { return v_; }  // NOLINT
  Integer& operator=(std::int64_t v) {
    v_ = Check(v);
    return *this;
  }
  Integer& operator+=(std::int64_t d) { return *this = std::int64_t{v_} + d; }
  Integer& operator-=(std::int64_t d) { return *this = std::int64_t{v_} - d; }
  Integer& operator++() { return *this += 1; }
  Integer& operator--() { return *this -= 1; }

 private:
  static std::int16_t Check(std::int64_t v);
  std::int16_t v_ = 0;
};

}  // namespace vb
