#include "platform/runtime.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace vb {

std::string ErrorMessage(int number) {
  switch (number) {
    case err::kInvalidCall:
      return "Chamada de procedimento ou argumento inválido";
    case err::kOverflow:
      return "Estouro";
    case err::kSubscript:
      return "Subscrito fora do intervalo";
    case err::kArrayElement:
      return "O elemento da matriz de controle não existe";
    case err::kObjectRequired:
      return "Objeto necessário";
    case err::kIndexOutOfBounds:
      return "Índice fora dos limites";
    case err::kElementNotFound:
      return "Elemento não encontrado";
    default:
      return "Erro definido pelo aplicativo ou pelo objeto";
  }
}

RuntimeError::RuntimeError(int number, const std::string& message)
    : std::runtime_error(message), number_(number) {}
RuntimeError::RuntimeError(int number) : RuntimeError(number, ErrorMessage(number)) {}

void Raise(int number) {
  throw RuntimeError(number);
}

double Int(double x) {
  return std::floor(x);
}

namespace {
double RoundHalfEven(double x) {
  return std::nearbyint(x);
}  // default mode: to nearest, even
double Checked(double x, double lo, double hi) {
  if (std::isnan(x)) Raise(err::kOverflow);
  const double r = RoundHalfEven(x);
  if (r < lo || r > hi) Raise(err::kOverflow);
  return r;
}
}  // namespace

std::uint8_t CByte(double x) {
  return static_cast<std::uint8_t>(Checked(x, 0, 255));
}
std::int16_t CInt(double x) {
  return static_cast<std::int16_t>(Checked(x, -32768, 32767));
}
std::int32_t CLng(double x) {
  return static_cast<std::int32_t>(Checked(x, -2147483648.0, 2147483647.0));
}

double Val(std::string_view text) {
  // Blanks, tabs and line feeds are skipped anywhere; the number stops at the first other
  // character that cannot continue it.
  std::string digits;
  bool seen_digit = false, seen_point = false, seen_exp = false;
  for (char c : text) {
    if (c == ' ' || c == '\t' || c == '\n' || c == '\r') continue;
    if ((c == '+' || c == '-') && (digits.empty() || digits.back() == 'e')) {
      digits += c;
    } else if (c >= '0' && c <= '9') {
      digits += c;
      seen_digit = true;
    } else if (c == '.' && !seen_point && !seen_exp) {
      digits += c;
      seen_point = true;
    } else if ((c == 'e' || c == 'E' || c == 'd' || c == 'D') && seen_digit && !seen_exp) {
      digits += 'e';
      seen_exp = true;
    } else {
      break;
    }
  }
  while (!digits.empty() && (digits.back() == 'e' || digits.back() == '+' || digits.back() == '-'))
    digits.pop_back();
  if (digits.empty() || digits == ".") return 0;
  return std::strtod(digits.c_str(), nullptr);
}

std::string FormatMoney(double value) {
  if (!std::isfinite(value)) return value < 0 ? "-inf" : std::isnan(value) ? "nan" : "inf";
  // Two decimals, halves away from zero: round the cents as a whole number. Beyond 2^53 cents a
  // double holds no fraction at all, and its digits are written as they stand.
  std::string digits;
  int frac = 0;
  const double cents = std::round(std::fabs(value) * 100.0);
  if (cents < 9e15) {
    const auto whole = static_cast<long long>(cents / 100);
    frac = static_cast<int>(cents - static_cast<double>(whole) * 100);
    digits = std::to_string(whole);
  } else {
    char buf[400];
    std::snprintf(buf, sizeof buf, "%.0f", std::fabs(value));
    digits = buf;
  }
  std::string grouped;
  const int n = static_cast<int>(digits.size());
  for (int i = 0; i < n; ++i) {
    if (i > 0 && (n - i) % 3 == 0) grouped += ',';
    grouped += digits[i];
  }
  char tail[8];
  std::snprintf(tail, sizeof tail, ".%02d", frac);
  return (value < 0 && cents > 0 ? "-" : "") + grouped + tail;
}

std::string SingleText(float value) {
  if (value == 0) return "0";
  char buf[32];
  std::snprintf(buf, sizeof buf, "%.7G", static_cast<double>(value));
  std::string s = buf;
  // Drop the trailing zeros of a fraction, as the runtime does.
  const auto e = s.find('E');
  std::string mant = s.substr(0, e), exp = e == std::string::npos ? "" : s.substr(e);
  if (mant.find('.') != std::string::npos) {
    while (mant.back() == '0') mant.pop_back();
    if (mant.back() == '.') mant.pop_back();
  }
  if (!exp.empty()) {
    // "E-05" as the runtime writes it: sign and at least two digits.
    const char sign = exp[1];
    std::string d = exp.substr(2);
    while (d.size() > 2 && d[0] == '0') d.erase(0, 1);
    exp = std::string("E") + sign + d;
  }
  return mant + exp;
}

std::string LongText(std::int64_t value) {
  return std::to_string(value);
}

std::int16_t Integer::Check(std::int64_t v) {
  if (v < std::numeric_limits<std::int16_t>::min() || v > std::numeric_limits<std::int16_t>::max())
    Raise(err::kOverflow);
  return static_cast<std::int16_t>(v);
}

}  // namespace vb
