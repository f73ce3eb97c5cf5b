// Chips and cards: short noise bursts and resonant pings, no tune.
#include <algorithm>
#include <array>
#include <cmath>

#include "instruments.h"
#include "sounds.h"

namespace soundgen {

namespace {

// Adds sample(u) from time t on, for the given seconds.
template <typename F>
void addAt(Mix& mix, double t, double seconds, F&& sample) {
  PanGains pan = PanGains::of(0.0);
  std::size_t first = secondsToFrames(t), count = secondsToFrames(seconds);
  double fade = 0.004 * kSampleRate;
  for (std::size_t k = 0; k < count && first + k < mix.frames(); ++k) {
    double closing = std::min(1.0, static_cast<double>(count - k) / fade);
    mix.add(first + k, closing * sample(static_cast<double>(k) / kSampleRate), pan, 0.12);
  }
}

double ring(double u, double hz, double decay) {
  return std::exp(-u / decay) * std::sin(kTwoPi * hz * u);
}

// One clay chip striking another: a hard tick, a few bright plate modes that die within a
// few hundredths of a second, and a dull knock of the stack. tone > 1 is brighter.
void clayClick(Mix& mix, double t, double velocity, double tone, Rng& rng) {
  constexpr std::array<double, 4> kModes = {2350.0, 3870.0, 5630.0, 7280.0};
  constexpr std::array<double, 4> kLevels = {1.0, 0.75, 0.45, 0.25};
  constexpr std::array<double, 4> kDecays = {0.02, 0.013, 0.009, 0.006};
  std::array<double, 4> detune{};
  for (double& d : detune) d = 1.0 + 0.03 * rng.bipolar();
  Biquad tickFilter = Biquad::highpass(2500.0 * tone, 0.7);
  addAt(mix, t, 0.09, [&](double u) {
    double modes = 0;
    for (std::size_t m = 0; m < kModes.size(); ++m)
      modes += kLevels[m] * ring(u, kModes[m] * tone * detune[m], kDecays[m] / std::sqrt(tone));
    double tick = tickFilter.process(static_cast<float>(rng.bipolar())) * std::exp(-u / 0.0012);
    double knock = 0.5 * ring(u, 420.0 * tone, 0.012);
    double attack = std::min(1.0, u / 0.0003);
    return 0.35 * velocity * attack * (0.8 * modes + 0.5 * tick + knock);
  });
}

// Band-passed noise whose centre glides from one frequency to another, shaped by env(u).
template <typename Env>
void swish(Mix& mix, double t, double seconds, double fromHz, double toHz, double q, double level,
           Rng& rng, Env&& env) {
  Biquad band = Biquad::bandpass(fromHz, q), band2 = Biquad::bandpass(fromHz, q);
  std::size_t frame = 0;
  addAt(mix, t, seconds, [&](double u) {
    if (frame++ % 16 == 0) {
      double share = std::clamp(u / seconds, 0.0, 1.0);
      Biquad now = Biquad::bandpass(fromHz * std::pow(toHz / fromHz, share), q);
      band.retune(now);
      band2.retune(now);
    }
    float x = band2.process(band.process(static_cast<float>(rng.bipolar())));
    return 2.0 * level * env(u / seconds) * x;
  });
}

// A card's edge or face meeting the felt: a low, short thump with a papery click.
void cardTap(Mix& mix, double t, double velocity, double bodyHz, Rng& rng) {
  Biquad paper = Biquad::bandpass(2600.0, 0.9);
  double phase = 0;
  addAt(mix, t, 0.2, [&](double u) {
    double hz = bodyHz * (1.0 + 0.5 * std::exp(-u / 0.01));
    phase += hz / kSampleRate;
    double body = std::sin(kTwoPi * phase) * std::exp(-u / 0.025);
    double click = paper.process(static_cast<float>(rng.bipolar())) * std::exp(-u / 0.004);
    return velocity * std::min(1.0, u / 0.0005) * (0.6 * body + 0.8 * click);
  });
}

Buffer finishEffect(const Mix& mix) {
  Buffer out = mix.finish(0.25, 0.6, 0.5);
  fadeOut(out, 0.015);
  return out;
}

double toneOfChip(int value) {
  switch (value) {
    case 1:
      return 0.82;
    case 5:
      return 0.95;
    case 10:
      return 1.1;
    default:
      return 1.3;
  }
}

}  // namespace

Buffer chipRattle() {
  Mix mix(0.25);
  Rng rng(501);
  // A handful of chips knocking together as a stack is rebuilt, thinning out.
  double t = 0.002;
  for (int i = 0; i < 9 && t < 0.2; ++i) {
    double velocity = (1.0 - 0.07 * i) * rng.range(0.55, 1.0);
    clayClick(mix, t, velocity, rng.range(0.85, 1.3), rng);
    t += rng.range(0.012, 0.032);
  }
  // The stack shifting under the fingers.
  swish(mix, 0.0, 0.2, 3500.0, 2500.0, 1.2, 0.25, rng,
        [](double s) { return std::sin(kPi * s) * (1.0 - 0.5 * s); });
  return finishEffect(mix);
}

Buffer chipClick(int value) {
  double tone = toneOfChip(value);
  Mix mix(0.13);
  Rng rng(600 + static_cast<std::uint64_t>(value));
  clayClick(mix, 0.002, 1.0, tone, rng);          // the chip lands on the stack
  clayClick(mix, 0.034, 0.35, tone * 1.03, rng);  // ... and settles
  clayClick(mix, 0.056, 0.12, tone * 0.98, rng);
  return finishEffect(mix);
}

Buffer cardDealt() {
  Mix mix(0.3);
  Rng rng(701);
  swish(mix, 0.0, 0.14, 1200.0, 3800.0, 0.9, 0.5, rng,
        [](double s) { return std::pow(std::sin(kPi * s), 2.0); });
  cardTap(mix, 0.13, 0.55, 190.0, rng);
  return finishEffect(mix);
}

Buffer cardTurned() {
  Mix mix(0.22);
  Rng rng(702);
  // The card bends and flutters as it turns, then snaps flat.
  swish(mix, 0.0, 0.08, 900.0, 5000.0, 1.1, 0.55, rng,
        [](double s) { return std::sin(kPi * s) * (0.7 + 0.3 * std::sin(kTwoPi * 5.0 * s)); });
  Biquad snapFilter = Biquad::highpass(3000.0, 0.8);
  addAt(mix, 0.075, 0.05, [&](double u) {
    double snap = snapFilter.process(static_cast<float>(rng.bipolar())) * std::exp(-u / 0.003);
    return 0.6 * snap + 0.25 * ring(u, 1150.0, 0.01);
  });
  cardTap(mix, 0.1, 0.3, 230.0, rng);
  return finishEffect(mix);
}

Buffer cardLanded() {
  Mix mix(0.45);
  Rng rng(703);
  // Sliding across the felt: a rough, grainy hiss that swells and stops at the thud.
  OnePole grain(60.0);
  swish(mix, 0.0, 0.26, 1400.0, 1900.0, 0.8, 0.45, rng, [&](double s) {
    double roughness = 0.6 + 0.8 * std::fabs(grain.process(static_cast<float>(rng.bipolar())));
    return std::min(1.0, s / 0.15) * roughness;
  });
  cardTap(mix, 0.25, 0.7, 130.0, rng);
  return finishEffect(mix);
}

Buffer cardMarked() {
  Mix mix(0.09);
  Rng rng(704);
  Biquad clickFilter = Biquad::highpass(4000.0, 0.7);
  addAt(mix, 0.0, 0.09, [&](double u) {
    double click = clickFilter.process(static_cast<float>(rng.bipolar())) * std::exp(-u / 0.001);
    double first = ring(u, 2637.0, 0.012) + 0.3 * ring(u, 5274.0, 0.006);
    double second =
        u > 0.025 ? ring(u - 0.025, 3520.0, 0.015) + 0.3 * ring(u - 0.025, 7040.0, 0.006) : 0.0;
    return 0.5 * (0.5 * click + first + 0.8 * second) * std::min(1.0, u / 0.0004);
  });
  return finishEffect(mix);
}

}  // namespace soundgen
