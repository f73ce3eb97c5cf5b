// The opponent's little tunes and the shuffle music: one to four seconds each.
#include <algorithm>
#include <cmath>
#include <string_view>

#include "band.h"
#include "sounds.h"

namespace soundgen {

namespace {

// Plays written notes through any instrument call.
template <typename Play>
void play(std::string_view text, const Clock& clock, Play&& instrument, double legato = 0.92) {
  for (const ScoreNote& n : parseMelody(text)) {
    double start = clock.at(n.beat), end = clock.at(n.beat + n.beats);
    instrument(Note{start, (end - start) * legato, static_cast<double>(n.pitch), n.velocity});
  }
}

Buffer finishTune(const Mix& mix, double room) {
  Buffer out = mix.finish(room, 0.5, 0.8);
  fadeOut(out, 0.25);
  return out;
}

const Place kLead{0.0, 0.25, 1.0};
const Place kBass{0.0, 0.08, 1.0};
const Place kChords{0.0, 0.25, 0.7};
const Place kPerc{0.0, 0.15, 1.0};

// A riffle of the deck: card edges slipping off the thumbs, one click each, the pace
// quickening then easing as the halves run out.
void riffle(Mix& mix, double t, double seconds, double rateFrom, double rateTo, double level,
            Rng& rng) {
  double u = 0;
  Biquad band;
  while (u < seconds) {
    double share = u / seconds;
    double rate = rateFrom + (rateTo - rateFrom) * std::sin(kPi * share);
    double velocity = level * rng.range(0.5, 1.0) * (0.6 + 0.4 * std::sin(kPi * share));
    band = Biquad::bandpass(rng.range(2200.0, 5200.0), 1.4);
    std::size_t first = secondsToFrames(t + u);
    PanGains pan = PanGains::of(rng.range(-0.2, 0.2));
    for (std::size_t k = 0; k < secondsToFrames(0.012); ++k) {
      double x = static_cast<double>(k) / kSampleRate;
      double click = band.process(static_cast<float>(rng.bipolar())) * std::exp(-x / 0.0016);
      mix.add(first + k, velocity * click, pan, 0.1);
    }
    u += (1.0 / rate) * rng.range(0.7, 1.3);
  }
}

// The bridge: the two halves cascading back together, a soft falling whoosh with a purr.
void bridge(Mix& mix, double t, double seconds, double level, Rng& rng) {
  Biquad band = Biquad::bandpass(3000.0, 0.8);
  PanGains pan = PanGains::of(0.0);
  std::size_t first = secondsToFrames(t), count = secondsToFrames(seconds);
  for (std::size_t k = 0; k < count; ++k) {
    double share = static_cast<double>(k) / static_cast<double>(count);
    if (k % 16 == 0) band.retune(Biquad::bandpass(3500.0 * std::pow(0.45, share), 0.8));
    double purr = 0.75 + 0.25 * std::sin(kTwoPi * 90.0 * static_cast<double>(k) / kSampleRate);
    double env = std::sin(kPi * share) * (1.0 - 0.4 * share);
    mix.add(first + k, level * env * purr * band.process(static_cast<float>(rng.bipolar())), pan,
            0.15);
  }
}

// The deck squared on the table.
void deckTap(Mix& mix, double t, double velocity, Rng& rng) {
  woodBlock(mix, t, velocity, 260.0, kPerc, rng);
  brushTap(mix, t, 0.6 * velocity, kPerc, rng);
}

}  // namespace

Buffer tuneOpens() {
  Mix mix(2.3);
  Rng rng(801);
  Clock clock{168, 0.5, 0.03};
  // Three quick arpeggios climbing to the top: "I'm in!"
  const char* line =
      "G4:.25' C5:.25' E5:.5' r:.25 A4:.25' D5:.25' F5:.5' r:.25 B4:.25' D5:.25' "
      "G5:.25' C6:1.5!";
  play(line, clock, [&](Note n) { clarinet(mix, n, kLead); });
  play(line, clock, [&](Note n) {
    n.pitch += 12;
    n.velocity *= 0.5;
    marimba(mix, n, {0.2, 0.25, 1.0});
  });
  play("C3:1.25' D3:1.25' G2:.75' C3:1.5'", clock, [&](Note n) { pizzicato(mix, n, kBass, rng); });
  play("r:3.25 C6+E6+G6:1.5?", clock, [&](Note n) { celesta(mix, n, kChords); });
  triangle(mix, clock.at(3.25), 0.6, kPerc);
  return finishTune(mix, 0.5);
}

Buffer tunePasses() {
  Mix mix(1.9);
  Rng rng(802);
  Clock clock{100, 0.5, 0.03};
  // A shrug: two notes falling, the second sagging a little further.
  play("A4:.75 E4:1.5", clock, [&](Note n) {
    if (n.pitch < 66) {
      n.bend = -0.6;
      n.vibrato = 0.1;
    }
    clarinet(mix, n, kLead);
  });
  play("A2:.75' E2:1.5'", clock, [&](Note n) { pizzicato(mix, n, kBass, rng); });
  play("C4+E4+G4+A4:.75? B3+D4+E4+G4:1.5?", clock, [&](Note n) { ePiano(mix, n, kChords); });
  return finishTune(mix, 0.5);
}

Buffer tuneBets() {
  Mix mix(2.3);
  Rng rng(803);
  Clock clock{132, 0.5, 0.03};
  // Brass section, "ba-da-BAM", landing on a bright sixth chord.
  Place left{-0.3, 0.25, 1.0}, right{0.3, 0.25, 1.0};
  play("G4:.5' C5:.5' E5:.25' r:.25 G5:2!", clock, [&](Note n) { trumpet(mix, n, kLead, false); });
  play("E4:.5' G4:.5' C5:.25' r:.25 E5:2!", clock, [&](Note n) { trumpet(mix, n, left, false); });
  play("r:1.5 A4:2!", clock, [&](Note n) { trumpet(mix, n, right, false); });
  play("C4:.5' E4:.5' G3:.25' r:.25 C4:2!", clock, [&](Note n) { trombone(mix, n, kBass); });
  play("C2:.5' G2:.5' r:.5 C2:2", clock, [&](Note n) { upright(mix, n, kBass, rng); });
  timpani(mix, clock.at(0), 0.6, 36, kPerc, rng);
  timpani(mix, clock.at(1.5), 0.9, 36, kPerc, rng);
  cymbal(mix, clock.at(1.5), 1.6, 0.6, false, kPerc, rng);
  return finishTune(mix, 0.6);
}

Buffer tunePush() {
  Mix mix(2.5);
  Rng rng(804);
  Clock clock{90, 0.5, 0.03};
  // "Meh": a muted trumpet wobbling down half a step.
  play("E4:1.25 Eb4:1.75", clock, [&](Note n) {
    n.vibrato = 0.45;
    if (n.pitch < 64) n.bend = -0.35;
    trumpet(mix, n, kLead, true);
  });
  play("C4+E4+G4+B4:1.25? C4+Eb4+G4+A4:1.75?", clock, [&](Note n) { ePiano(mix, n, kChords); });
  play("C3:1.25' C3:1.75'", clock, [&](Note n) { pizzicato(mix, n, kBass, rng); });
  return finishTune(mix, 0.5);
}

Buffer tuneThinking() {
  Mix mix(2.9);
  Rng rng(805);
  Clock clock{120, 0.5, 0.03};
  // Tick, tock... and a little question that never quite resolves.
  for (int i = 0; i < 10; ++i)
    woodBlock(mix, clock.at(i * 0.5), i % 2 ? 0.45 : 0.6, i % 2 ? 1400.0 : 1900.0,
              {i % 2 ? 0.25 : -0.25, 0.1, 1.0}, rng);
  play("A4:.5' C5:.5' r:.5 E5:.5' D5:.5' r:.5 B4:.5' G#4:1.5", clock,
       [&](Note n) { marimba(mix, n, kLead); });
  play("A2:.5' r:1 A2:.5' r:1 E2:2'", clock, [&](Note n) { pizzicato(mix, n, kBass, rng); });
  play("C4+E4+G4+B4:3? B3+D4+E4+G#4:2?", clock, [&](Note n) {
    n.velocity *= 0.6;
    vibes(mix, n, kChords);
  });
  return finishTune(mix, 0.5);
}

Buffer tuneWins() {
  Mix mix(3.6);
  Rng rng(806);
  Clock clock{140, 0.5, 0.05};
  Place left{-0.3, 0.3, 1.0}, right{0.3, 0.3, 1.0};
  // A proper fanfare: triplet pick-up, climb, and the big held chord with a crash.
  play("G4:.333' G4:.333' G4:.334' C5:1! E5:.5' G5:.5' E5:.333' G5:.333' r:.334 C6:2.5!", clock,
       [&](Note n) { trumpet(mix, n, kLead, false); });
  play("E4:.333' E4:.333' E4:.334' G4:1! C5:.5' E5:.5' C5:.333' E5:.333' r:.334 G5:2.5!", clock,
       [&](Note n) { trumpet(mix, n, left, false); });
  play("C4:.333' C4:.333' C4:.334' E4:1! G4:1' G4:.666' r:.334 E5:2.5!", clock,
       [&](Note n) { trumpet(mix, n, right, false); });
  play("C3:.333' C3:.333' C3:.334' C4:1! C4:1' G3:1' C4:2.5!", clock,
       [&](Note n) { trombone(mix, n, kBass); });
  play("C2:1' C2:1! G1:1' G1:1' C2:2.5", clock, [&](Note n) { upright(mix, n, kBass, rng); });
  timpani(mix, clock.at(1), 0.8, 36, kPerc, rng);
  for (int i = 0; i < 8; ++i)
    timpani(mix, clock.at(3 + i * 0.125), 0.25 + 0.05 * i, 31, kPerc, rng);
  timpani(mix, clock.at(4), 1.0, 36, kPerc, rng);
  cymbal(mix, clock.at(3), clock.at(4) - clock.at(3), 0.5, true, kPerc, rng);
  cymbal(mix, clock.at(4), 2.5, 0.8, false, kPerc, rng);
  play("r:4 C6:.125? E6:.125? G6:.125? C7:1.5?", clock, [&](Note n) { celesta(mix, n, kChords); });
  return finishTune(mix, 0.7);
}

Buffer tuneLoses() {
  Mix mix(3.5);
  Rng rng(807);
  // The sad trombone: wah, wah, wah, waaaah.
  const double starts[] = {0.05, 0.55, 1.05, 1.55};
  const double pitches[] = {62, 61, 60, 59};
  for (int i = 0; i < 4; ++i) {
    bool last = i == 3;
    Note n{starts[i], last ? 1.6 : 0.42, pitches[i], last ? 0.95 : 0.85};
    n.bend = last ? -0.5 : -0.15;
    n.vibrato = last ? 0.45 : 0.0;
    trombone(mix, n, kLead);
  }
  upright(mix, {1.55, 1.4, 35, 0.6}, kBass, rng);
  return finishTune(mix, 0.5);
}

Buffer tuneGoodbye() {
  Mix mix(3.9);
  Rng rng(808);
  Clock clock{96, 0.5, 0.05};
  // "Bye-bye, see you": a gentle wave down and home.
  play("G5:.5 E5:.5 C5:1 D5:.5 G4:.5 C5:2", clock, [&](Note n) { vibes(mix, n, kLead); });
  play("G4:.5 E4:.5 C4:1 D4:.5 G3:.5 C4:2", clock, [&](Note n) {
    n.pitch += 12;
    n.velocity *= 0.5;
    flute(mix, n, {-0.3, 0.3, 1.0}, rng);
  });
  play("E4+A4+D5:2? F4+A4+C5:1? E4+G4+B4+D5:2?", clock, [&](Note n) { ePiano(mix, n, kChords); });
  play("C3:2 G2:1 C3:2", clock, [&](Note n) { upright(mix, n, kBass, rng); });
  return finishTune(mix, 0.7);
}

Buffer tuneShuffle(int which) {
  Mix mix(3.2);
  Rng rng(810 + static_cast<std::uint64_t>(which));
  switch (which) {
    case 1: {
      // Bossa on the marimba; two riffles with their bridges.
      riffle(mix, 0.08, 0.9, 35, 70, 0.5, rng);
      bridge(mix, 1.0, 0.4, 0.35, rng);
      riffle(mix, 1.6, 0.9, 40, 75, 0.5, rng);
      bridge(mix, 2.52, 0.4, 0.35, rng);
      Clock clock{150, 0.5, 0.0};
      play("E5:.5' G5:.5' r:.5 A5:.5' G5:.5' E5:1 r:.5 D5:.5' E5:.5' r:.5 C5:.5' A4:.5' C5:1 r:.5",
           clock, [&](Note n) { marimba(mix, n, kLead); });
      play("C3:1.5' G2:.5' C3:1' r:1 D3:1' G2:1' C3:1' r:1", clock,
           [&](Note n) { pizzicato(mix, n, kBass, rng); });
      for (double b : {0.0, 1.5, 3.0, 5.0, 6.5}) rimClick(mix, clock.at(b), 0.35, kPerc, rng);
      break;
    }
    case 2: {
      // Swinging vibes; one long riffle, the bridge, and the deck squared twice.
      riffle(mix, 0.1, 1.3, 45, 90, 0.5, rng);
      bridge(mix, 1.45, 0.55, 0.4, rng);
      deckTap(mix, 2.3, 0.5, rng);
      deckTap(mix, 2.5, 0.4, rng);
      Clock clock{150, 0.62, 0.0};
      play("C5:.5 D5:.5 F5:.5 A5:1 G5:.5 F5:1 D5:.5 F5:.5 E5:.5 C5:.5 F5:1.5 r:.5", clock,
           [&](Note n) { vibes(mix, n, kLead); });
      play("F2:1' A2:1' C3:1' D3:1' G2:1' C3:1' F2:1' r:1", clock,
           [&](Note n) { pizzicato(mix, n, kBass, rng); });
      for (double b : {1.0, 3.0, 5.0, 7.0}) brushTap(mix, clock.at(b), 0.4, kPerc, rng);
      break;
    }
    default: {
      // A sly minor tune on the clarinet over three short riffles.
      riffle(mix, 0.05, 0.7, 40, 80, 0.5, rng);
      bridge(mix, 0.78, 0.3, 0.3, rng);
      riffle(mix, 1.15, 0.7, 40, 80, 0.5, rng);
      bridge(mix, 1.88, 0.3, 0.3, rng);
      riffle(mix, 2.25, 0.5, 50, 90, 0.45, rng);
      deckTap(mix, 2.85, 0.5, rng);
      Clock clock{160, 0.5, 0.0};
      play(
          "G4:.5' Bb4:.5' D5:.5' E5:.5' D5:1 Bb4:.5' G4:.5' A4:.5' C5:.5' Eb5:.5' D5:.5' G4:1.5 "
          "r:.5",
          clock, [&](Note n) { clarinet(mix, n, kLead); });
      play("G2:1' D3:1' G2:1' Bb2:1' D2:1' A2:1' G2:1.5' r:.5", clock,
           [&](Note n) { pizzicato(mix, n, kBass, rng); });
      break;
    }
  }
  Buffer out = mix.finish(0.45, 0.5, 0.7);
  fadeOut(out, 0.2);
  return out;
}

Buffer tuneLight() {
  Mix mix(0.3);
  // Two soft bell notes, a fifth apart, gone almost at once.
  celesta(mix, {0.0, 0.12, 88, 0.5}, {-0.1, 0.2, 1.0});
  celesta(mix, {0.045, 0.1, 95, 0.35}, {0.1, 0.2, 1.0});
  Buffer out = mix.finish(0.3, 0.5, 0.6);
  fadeOut(out, 0.12);
  return out;
}

}  // namespace soundgen
