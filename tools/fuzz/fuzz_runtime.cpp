// The old runtime's text conversions: Val() of any text, and the money and number formats of
// what it reads. Each result must have the form the game's labels rely on.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "platform/runtime.h"

namespace {

void Check(bool ok) {
  if (!ok) std::abort();
}

// "1,234,567.89", with a minus in front of a negative amount.
void CheckMoney(const std::string& money) {
  std::size_t i = money[0] == '-' ? 1 : 0;
  const std::size_t point = money.size() - 3;
  Check(money.size() >= i + 4 && money[point] == '.');
  Check(std::isdigit(static_cast<unsigned char>(money[point + 1])) &&
        std::isdigit(static_cast<unsigned char>(money[point + 2])));
  const std::size_t digits = point - i;
  for (std::size_t k = 0; k < digits; ++k, ++i) {
    const bool comma = (digits - k) % 4 == 0;
    Check(comma ? money[i] == ',' : std::isdigit(static_cast<unsigned char>(money[i])) != 0);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  const double v = vb::Val(text);
  if (std::isfinite(v)) {
    CheckMoney(vb::FormatMoney(v));
    const float f = static_cast<float>(v);
    const std::string single = vb::SingleText(f);
    // The text of a Single reads back as the same Single to its seven digits.
    if (std::isfinite(f) && f != 0)
      Check(std::fabs(static_cast<float>(vb::Val(single)) - f) <= std::fabs(f) * 1e-6f);
    if (std::fabs(v) < 9e15) {
      const auto whole = static_cast<std::int64_t>(v);
      Check(vb::Val(vb::LongText(whole)) == static_cast<double>(whole));
    }
  }
  for (auto convert : {+[](double x) { return static_cast<double>(vb::CByte(x)); },
                       +[](double x) { return static_cast<double>(vb::CInt(x)); },
                       +[](double x) { return static_cast<double>(vb::CLng(x)); }}) {
    try {
      const double r = convert(v);
      Check(std::fabs(r - v) <= 0.5);
    } catch (const vb::RuntimeError& e) {
      Check(e.number() == vb::err::kOverflow);
    }
  }
  return 0;
}
