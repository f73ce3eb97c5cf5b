#include <gtest/gtest.h>

#include "platform/rnd.h"
#include "platform/runtime.h"

TEST(Rnd, KnownValuesFromStateZero) {
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
