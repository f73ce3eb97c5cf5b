// What the tests of the game share: the run-time error an action ends the program with, and the
// draws that steer the opponent's mind.
#pragma once

#include <gtest/gtest.h>

#include <functional>

#include "platform/runtime.h"

// The run-time error number that `action` ends the program with, 0 if none.
inline int ErrorOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const vb::RuntimeError& e) {
    return e.number();
  }
  return 0;
}

// Expects `expression` to end the program with run-time error `number`.
#define EXPECT_FAULT(expression, number) EXPECT_EQ(ErrorOf([&] { expression; }), (number))

// The Rnd value that draws mood m (0 to 8) for her next decision.
inline float Humor(int m) {
  return (m + 0.5f) / 9;
}
// The Rnd value that draws x from the band a..b.
inline float Faixa(int a, int b, int x) {
  return (x - a + 0.5f) / (b - a + 1);
}
