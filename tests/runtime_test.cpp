#include "platform/runtime.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "platform/rnd.h"
#include "platform/settings.h"
#include "support.h"

TEST(Rnd, KnownValues) {
  vb::SetRndState(0);
  EXPECT_FLOAT_EQ(vb::Rnd(), 0.8833107948303223f);
  EXPECT_FLOAT_EQ(vb::Rnd(), 0.4315279722213745f);
  EXPECT_FLOAT_EQ(vb::Rnd(), 0.02643376588821411f);
  vb::SetRndState(0);
  vb::Randomize(4);
  EXPECT_FLOAT_EQ(vb::Rnd(), 0.8501198887825012f);
  vb::SetRndState(0);
  vb::Randomize(0.6484357714653015f);
  EXPECT_FLOAT_EQ(vb::Rnd(), 0.19720858335494995f);
}

TEST(Rnd, ReseedWithTheSameValueGoesOn) {
  vb::SetRndState(12345);
  vb::Randomize(3);
  const float first = vb::Rnd();
  vb::Randomize(3);
  EXPECT_NE(vb::Rnd(), first);
}

TEST(Rnd, MoodsChainedAsTheGameDrawsThemAreEven) {
  // Each mood reseeds the next draw, as the opponent's decisions do.
  vb::SetRndState(7);
  std::array<int, 9> count{};
  float semente = 0;
  const int n = 90000;
  for (int i = 0; i < n; ++i) {
    vb::Randomize(semente);
    const int mood = vb::DrawInt(9);
    ASSERT_GE(mood, 0);
    ASSERT_LE(mood, 8);
    ++count[mood];
    semente = static_cast<float>(mood);
  }
  for (int c : count) EXPECT_NEAR(c, n / 9.0, n / 9.0 * 0.03);
}

TEST(Rnd, ABandNeverYieldsOneBeyondItsTop) {
  vb::ScriptRnd({0.99999994f, 0.0f});
  EXPECT_EQ(vb::DrawInt(50, 10), 59);
  EXPECT_EQ(vb::DrawInt(50, 10), 10);
  EXPECT_EQ(vb::ScriptedRndLeft(), 0u);
}

TEST(Runtime, IntIsTheFloor) {
  EXPECT_EQ(vb::Int(-7.0 / 50), -1);
  EXPECT_EQ(vb::Int(7.0 / 50), 0);
  EXPECT_EQ(vb::Int(-0.5), -1);
  EXPECT_EQ(vb::Int(2.99), 2);
}

TEST(Runtime, ConversionsRoundHalfToEven) {
  struct Case {
    double in;
    int out;
  };
  for (Case c : {Case{0.5, 0}, {1.5, 2}, {2.5, 2}, {3.5, 4}, {-2.5, -2}, {15.49, 15}}) {
    EXPECT_EQ(vb::CInt(c.in), c.out) << c.in;
    EXPECT_EQ(vb::CLng(c.in), c.out) << c.in;
    if (c.in >= 0) {
      EXPECT_EQ(vb::CByte(c.in), c.out) << c.in;
    }
  }
  EXPECT_THROW(vb::CByte(255.5), vb::RuntimeError);
  EXPECT_THROW(vb::CByte(-0.6), vb::RuntimeError);
  EXPECT_THROW(vb::CInt(32767.5), vb::RuntimeError);
}

TEST(Runtime, ValReadsTheLeadingNumber) {
  EXPECT_EQ(vb::Val(" 12abc"), 12);
  EXPECT_EQ(vb::Val("3,5"), 3);
  EXPECT_EQ(vb::Val(""), 0);
  EXPECT_EQ(vb::Val("1 0"), 10);
  EXPECT_EQ(vb::Val("-4.25x"), -4.25);
  EXPECT_EQ(vb::Val("F01_"), 0);
  EXPECT_FLOAT_EQ(static_cast<float>(vb::Val("0.6484358")), 0.6484358f);
}

TEST(Runtime, MoneyFormat) {
  struct Case {
    double in;
    const char* out;
  };
  // Money of any size is written whole: every digit, grouped.
  for (Case c : {Case{0, "0.00"},
                 {123.625, "123.63"},
                 {-1234567.891, "-1,234,567.89"},
                 {1e20, "100,000,000,000,000,000,000.00"},
                 {-3e16, "-30,000,000,000,000,000.00"}}) {
    EXPECT_EQ(vb::FormatMoney(c.in), c.out) << c.in;
  }
}

TEST(Runtime, TextOfASingle) {
  EXPECT_EQ(vb::SingleText(0.6484357714653015f), "0.6484358");
  EXPECT_EQ(vb::SingleText(4.0f), "4");
  EXPECT_EQ(vb::SingleText(0.0f), "0");
  EXPECT_EQ(vb::SingleText(-2.5f), "-2.5");
  EXPECT_EQ(vb::SingleText(1e-5f), "1E-05");
}

TEST(Runtime, SixteenBitVariablesOverflow) {
  vb::Integer i = 32767;
  EXPECT_FAULT(i += 1, vb::err::kOverflow);
  vb::Integer k = -32768;
  EXPECT_EQ(static_cast<int>(k), -32768);
  std::int32_t wide = static_cast<std::int32_t>(vb::Integer(30000)) + 3000;  // reads widen
  EXPECT_EQ(wide, 33000);
}

TEST(Settings, MemoryStoreReadsEmptyForMissing) {
  vb::InstallSettings(nullptr);
  EXPECT_EQ(vb::GetSetting("Trevim", "Ramdomize", "Seed"), "");
  vb::SaveSetting("Trevim", "Ramdomize", "Seed", "0.5");
  EXPECT_EQ(vb::GetSetting("Trevim", "Ramdomize", "Seed"), "0.5");
  vb::InstallSettings(nullptr);
  EXPECT_EQ(vb::GetSetting("Trevim", "Ramdomize", "Seed"), "");
}
