// Checks of the sound kit: the parts whose faults would be heard as wrong notes, wrong
// levels, clicks or broken files.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "band.h"
#include "instruments.h"
#include "score.h"
#include "sounds.h"
#include "synth.h"

namespace soundgen {
namespace {

Buffer sine(double hz, double amplitude, double seconds, bool rightToo = true) {
  Buffer b(secondsToFrames(seconds));
  for (std::size_t i = 0; i < b.frames(); ++i) {
    double v = amplitude * std::sin(kTwoPi * hz * static_cast<double>(i) / kSampleRate);
    b.left[i] = static_cast<float>(v);
    b.right[i] = rightToo ? static_cast<float>(v) : 0.0f;
  }
  return b;
}

// Fundamental by autocorrelation over a window, refined by a parabola through the peak.
double measuredHz(const std::vector<float>& x, std::size_t from, double expectedHz) {
  std::size_t window = 8192;
  double expectedLag = kSampleRate / expectedHz;
  auto corr = [&](std::size_t lag) {
    double sum = 0;
    for (std::size_t i = from; i < from + window; ++i) sum += x[i] * x[i + lag];
    return sum;
  };
  std::size_t low = static_cast<std::size_t>(expectedLag * 0.9);
  std::size_t high = static_cast<std::size_t>(expectedLag * 1.1) + 1;
  std::size_t best = low;
  for (std::size_t lag = low; lag <= high; ++lag)
    if (corr(lag) > corr(best)) best = lag;
  double a = corr(best - 1), b = corr(best), c = corr(best + 1);
  double shift = 0.5 * (a - c) / (a - 2 * b + c);
  return kSampleRate / (static_cast<double>(best) + shift);
}

double cents(double hz, double reference) {
  return 1200.0 * std::log2(hz / reference);
}

TEST(SoundKit, PitchTable) {
  EXPECT_DOUBLE_EQ(midiToHz(69), 440.0);
  EXPECT_NEAR(midiToHz(60), 261.626, 0.001);
  EXPECT_NEAR(midiToHz(81), 880.0, 1e-9);
  for (auto [name, midi] : std::vector<std::pair<const char*, int>>{
           {"F#4", 66}, {"Bb3", 58}, {"Cb4", 59}, {"B#3", 60}, {"C-1", 0}})
    EXPECT_EQ(parsePitch(name), midi) << name;
  for (const char* bad : {"H4", "C", "", "4", "C#x"})
    EXPECT_THROW(parsePitch(bad), std::invalid_argument) << bad;
}

TEST(SoundKit, FiltersPassAndStopWhereTheyShould) {
  auto gain = [](Biquad f, double hz) {
    Buffer in = sine(hz, 1.0, 0.5);
    double peak = 0;
    for (std::size_t i = 0; i < in.frames(); ++i) {
      double y = f.process(in.left[i]);
      if (i > in.frames() / 2) peak = std::max(peak, std::fabs(y));
    }
    return peak;
  };
  EXPECT_NEAR(gain(Biquad::lowpass(1000, 0.707), 100), 1.0, 0.01);
  EXPECT_LT(gain(Biquad::lowpass(1000, 0.707), 10000), 0.02);
  EXPECT_NEAR(gain(Biquad::highpass(1000, 0.707), 10000), 1.0, 0.01);
  EXPECT_LT(gain(Biquad::highpass(1000, 0.707), 100), 0.02);
  EXPECT_NEAR(gain(Biquad::bandpass(2000, 2.0), 2000), 1.0, 0.01);
  EXPECT_LT(gain(Biquad::bandpass(2000, 2.0), 200), 0.1);
  EXPECT_NEAR(gain(Biquad::peaking(500, 1.0, 6.0), 500), std::pow(10.0, 6.0 / 20), 0.01);
}

TEST(SoundKit, LoudnessFollowsTheReferenceTone) {
  // A 997 Hz sine at full scale on one channel reads -3.01 LUFS.
  EXPECT_NEAR(loudnessLufs(sine(997, 1.0, 3.0), 1), -3.01, 0.05);
  EXPECT_NEAR(loudnessLufs(sine(997, 0.1, 3.0), 1), -23.01, 0.05);
  // The same tone on both channels of a stereo file is 3 dB louder.
  EXPECT_NEAR(loudnessLufs(sine(997, 0.1, 3.0), 2), -20.0, 0.05);
  // Silence around a sound is gated out; of the 33 blocks that touch the 3 s tone, 27 lie
  // inside it and the six at its edges hold 3/4, 1/2 and 1/4 of a block of it.
  Buffer padded(secondsToFrames(10.0));
  padded.mixIn(sine(997, 0.1, 3.0), 1.0, secondsToFrames(4.0));
  EXPECT_NEAR(loudnessLufs(padded, 1), -23.01 + 10 * std::log10(30.0 / 33.0), 0.02);
  // Shorter than one block: measured over its own length.
  EXPECT_NEAR(loudnessLufs(sine(997, 0.1, 0.2), 1), -23.01, 0.1);
  EXPECT_LT(loudnessLufs(Buffer(1000), 1), -150);
}

TEST(SoundKit, LimiterHoldsTheCeilingAndLeavesQuietSoundAlone) {
  Rng rng(3);
  Buffer loud(20000);
  for (std::size_t i = 0; i < loud.frames(); ++i) {
    loud.left[i] = static_cast<float>(3.0 * rng.bipolar());
    loud.right[i] = static_cast<float>(2.0 * rng.bipolar());
  }
  limitPeaks(loud, 2, -1.0, 0.002, 0.05);
  EXPECT_LE(peakDb(loud, 2), -1.0 + 1e-4);

  Buffer quiet = sine(440, 0.5, 0.5);
  Buffer copy = quiet;
  limitPeaks(quiet, 1, -1.0, 0.002, 0.05);
  EXPECT_EQ(quiet.left, copy.left);
}

TEST(SoundKit, MasteringReachesTheTargetWithinLimits) {
  Buffer tone = sine(997, 0.05, 2.0);
  master(tone, 2, -18.0, -1.0);
  EXPECT_NEAR(loudnessLufs(tone, 2), -18.0, 0.05);

  // A spiky sound: the limiter is allowed only so much, the level stops short of the target.
  Buffer clicks(secondsToFrames(1.0));
  for (std::size_t i = 0; i < clicks.frames(); i += 4410) clicks.left[i] = clicks.right[i] = 0.5f;
  master(clicks, 1, -10.0, -1.0, 3.0);
  EXPECT_LE(peakDb(clicks, 1), -1.0 + 1e-4);
  EXPECT_LT(loudnessLufs(clicks, 1), -10.5);
}

TEST(SoundKit, PanLawAndEdits) {
  EXPECT_NEAR(PanGains::of(-1).right, 0.0, 1e-9);
  EXPECT_NEAR(PanGains::of(1).left, 0.0, 1e-9);
  for (double pan = -1; pan <= 1; pan += 0.1) {
    PanGains g = PanGains::of(pan);
    EXPECT_NEAR(g.left * g.left + g.right * g.right, 1.0, 1e-9);
  }

  Buffer b = sine(440, 0.5, 1.0);
  fadeIn(b, 0.1);
  fadeOut(b, 0.1);
  EXPECT_EQ(b.left.front(), 0.0f);
  EXPECT_EQ(b.left.back(), 0.0f);
  trim(b, 1.5);
  EXPECT_EQ(b.frames(), secondsToFrames(1.5));
  EXPECT_EQ(b.right.back(), 0.0f);
  trim(b, 0.25);
  EXPECT_EQ(b.frames(), secondsToFrames(0.25));
}

TEST(SoundKit, ReverbTailDecaysAndSpreads) {
  Buffer impulse(secondsToFrames(4.0));
  impulse.left[0] = impulse.right[0] = 1.0f;
  Buffer wet = reverb(impulse, 0.75, 0.5);
  auto energy = [&](const std::vector<float>& x, double from, double to) {
    double sum = 0;
    for (std::size_t i = secondsToFrames(from); i < secondsToFrames(to); ++i) sum += x[i] * x[i];
    return sum;
  };
  double early = energy(wet.left, 0.0, 0.5), late = energy(wet.left, 3.5, 4.0);
  EXPECT_GT(early, 0.0);
  EXPECT_LT(late, early * 1e-3);
  EXPECT_NE(wet.left, wet.right);  // the two sides are tuned apart for width
  for (float v : wet.left) ASSERT_TRUE(std::isfinite(v));
}

TEST(SoundKit, WavFileLayout) {
  Buffer b(3);
  b.left = {0.5f, -2.0f, 0.25f};
  b.right = {0.5f, 2.0f, -0.25f};
  auto u16 = [](const std::vector<std::uint8_t>& d, std::size_t at) {
    return static_cast<unsigned>(d[at] | (d[at + 1] << 8));
  };
  auto u32 = [&](const std::vector<std::uint8_t>& d, std::size_t at) {
    return u16(d, at) | (u16(d, at + 2) << 16);
  };
  auto s16 = [&](const std::vector<std::uint8_t>& d, std::size_t at) {
    return static_cast<std::int16_t>(u16(d, at));
  };
  std::vector<std::uint8_t> stereo = encodeWav(b, 2);
  ASSERT_EQ(stereo.size(), 44u + 12u);
  EXPECT_EQ(std::string(stereo.begin(), stereo.begin() + 4), "RIFF");
  EXPECT_EQ(u32(stereo, 4), 36u + 12u);
  EXPECT_EQ(u32(stereo, 28), 44100u * 4u);  // bytes a second
  EXPECT_EQ(u32(stereo, 40), 12u);
  EXPECT_EQ(s16(stereo, 44), 16384);   // left, right interleaved
  EXPECT_EQ(s16(stereo, 48), -32768);  // clipped, not wrapped
  EXPECT_EQ(s16(stereo, 50), 32767);

  std::vector<std::uint8_t> mono = encodeWav(b, 1);
  ASSERT_EQ(mono.size(), 44u + 6u);
  EXPECT_EQ(u16(mono, 22), 1u);
  EXPECT_EQ(u16(mono, 32), 2u);
  EXPECT_EQ(s16(mono, 44), 16384);  // the average of both sides
  EXPECT_EQ(s16(mono, 46), 0);
  EXPECT_EQ(s16(mono, 48), 0);
  EXPECT_THROW(encodeWav(b, 3), std::invalid_argument);
}

TEST(Score, MelodyNotation) {
  double total = 0;
  auto notes = parseMelody("C5:1.5 D5 r:.5 E4+G4:1! A4? B4:2'", 4.0, &total);
  ASSERT_EQ(notes.size(), 6u);
  EXPECT_EQ(notes[0].pitch, 72);
  EXPECT_DOUBLE_EQ(notes[0].beat, 4.0);
  EXPECT_DOUBLE_EQ(notes[1].beats, 1.5);  // the length carries over
  EXPECT_DOUBLE_EQ(notes[2].beat, 7.5);   // after the rest
  EXPECT_EQ(notes[2].pitch, 64);
  EXPECT_EQ(notes[3].pitch, 67);  // same chord, same beat
  EXPECT_DOUBLE_EQ(notes[3].beat, 7.5);
  EXPECT_DOUBLE_EQ(notes[3].velocity, 1.0);
  EXPECT_DOUBLE_EQ(notes[4].velocity, 0.5);
  EXPECT_DOUBLE_EQ(notes[5].beats, 1.0);  // staccato halves the sound, not the beat
  EXPECT_DOUBLE_EQ(total, 7.5);
  EXPECT_THROW(parseMelody("C5:0"), std::invalid_argument);
  EXPECT_THROW(parseMelody("C5:x"), std::invalid_argument);
}

TEST(Score, ChordChartsAndVoicings) {
  auto chart = parseChords("Am9:4 D7b9:2 Gmaj7:2 F#m7b5:4", 8);
  ASSERT_EQ(chart.size(), 4u);
  EXPECT_EQ(chart[0].root, 9);
  EXPECT_EQ(chart[0].intervals, (std::vector<int>{0, 3, 7, 10, 14}));
  EXPECT_DOUBLE_EQ(chart[1].beat, 12);
  EXPECT_EQ(chart[3].root, 6);
  EXPECT_EQ(&chordAt(chart, 13.5), &chart[1]);
  EXPECT_EQ(&chordAt(chart, 14.0), &chart[2]);
  EXPECT_EQ(&chordAt(chart, 99), &chart[3]);
  EXPECT_THROW(parseChords("Cmaj13:4"), std::invalid_argument);
  EXPECT_THROW(parseChords("C7"), std::invalid_argument);

  for (const Chord& chord : parseChords("Am9:4 D7b9:4 Gmaj7:4 C13:4 F#m7b5:4 Bb6:4 E:4")) {
    for (int centre : {59, 63}) {
      std::vector<int> v = voiceChord(chord, centre, 4);
      ASSERT_EQ(v.size(), 4u);
      EXPECT_LE(v.back() - v.front(), 12 + 12) << "spread";
      for (int p : v) {
        bool inChord = false;
        for (int i : chord.intervals) inChord = inChord || (chord.root + i) % 12 == p % 12;
        EXPECT_TRUE(inChord) << p;
        EXPECT_GE(p, centre - 6);
      }
    }
  }
  // A ninth chord drops its root, the bass has it.
  std::vector<int> am9 = voiceChord(parseChords("Am9:4")[0], 60, 4);
  for (int p : am9) EXPECT_NE(p % 12, 9);
}

TEST(Score, ClockWithAndWithoutSwing) {
  Clock straight{120, 0.5, 0.1};
  EXPECT_DOUBLE_EQ(straight.at(0), 0.1);
  EXPECT_DOUBLE_EQ(straight.at(2.5), 0.1 + 1.25);
  Clock swung{120, 0.64, 0};
  EXPECT_NEAR(swung.at(1.5), 0.5 + 0.64 * 0.5, 1e-12);
  EXPECT_NEAR(swung.at(1.75), 0.5 + 0.82 * 0.5, 1e-12);
  EXPECT_DOUBLE_EQ(swung.at(3), 1.5);
}

TEST(Instruments, PlayInTune) {
  struct Case {
    const char* name;
    double pitch;
    std::function<void(Mix&, const Note&)> play;
  };
  Rng rng(5);
  std::vector<Case> cases = {
      {"guitar low", 45, [&](Mix& m, const Note& n) { nylonGuitar(m, n, {}, rng); }},
      {"guitar high", 76, [&](Mix& m, const Note& n) { nylonGuitar(m, n, {}, rng); }},
      {"bass", 33, [&](Mix& m, const Note& n) { upright(m, n, {}, rng); }},
      {"pizzicato", 55, [&](Mix& m, const Note& n) { pizzicato(m, n, {}, rng); }},
      {"electric piano", 64, [&](Mix& m, const Note& n) { ePiano(m, n, {}); }},
      {"vibes", 72, [&](Mix& m, const Note& n) { vibes(m, n, {}); }},
      {"flute", 74, [&](Mix& m, const Note& n) { flute(m, n, {}, rng); }},
      {"muted trumpet", 67, [&](Mix& m, const Note& n) { trumpet(m, n, {}, true); }},
  };
  for (const Case& c : cases) {
    Mix mix(1.0);
    c.play(mix, Note{0.0, 0.9, c.pitch, 0.8});
    Buffer b = mix.finish(0.5, 0.5, 0.0);
    double hz = measuredHz(b.left, secondsToFrames(0.15), midiToHz(c.pitch));
    EXPECT_NEAR(cents(hz, midiToHz(c.pitch)), 0.0, 8.0) << c.name;
  }
}

TEST(Sounds, LengthsLevelsAndRepeatability) {
  struct Case {
    const char* name;
    std::function<Buffer()> make;
    double minSeconds, maxSeconds;
  };
  std::vector<Case> cases = {
      {"rattle", chipRattle, 0.2, 0.3},
      {"chip 1", [] { return chipClick(1); }, 0.1, 0.15},
      {"chip 50", [] { return chipClick(50); }, 0.1, 0.15},
      {"card dealt", cardDealt, 0.15, 0.5},
      {"card turned", cardTurned, 0.15, 0.5},
      {"card landed", cardLanded, 0.2, 0.6},
      {"card marked", cardMarked, 0.05, 0.2},
      {"opens", tuneOpens, 1, 4},
      {"passes", tunePasses, 1, 4},
      {"bets", tuneBets, 1, 4},
      {"push", tunePush, 1, 4},
      {"thinking", tuneThinking, 1, 4},
      {"wins", tuneWins, 1, 4},
      {"loses", tuneLoses, 1, 4},
      {"goodbye", tuneGoodbye, 1, 4},
      {"shuffle 1", [] { return tuneShuffle(1); }, 3.2, 3.2},
      {"shuffle 2", [] { return tuneShuffle(2); }, 3.2, 3.2},
      {"shuffle 3", [] { return tuneShuffle(3); }, 3.2, 3.2},
      {"light", tuneLight, 0.25, 0.35},
  };
  for (const Case& c : cases) {
    Buffer a = c.make();
    double seconds = static_cast<double>(a.frames()) / kSampleRate;
    EXPECT_GE(seconds, c.minSeconds) << c.name;
    EXPECT_LE(seconds, c.maxSeconds) << c.name;
    EXPECT_GT(peakDb(a, 1), -60) << c.name << " is silent";
    // Sounds end in silence: no click when they stop.
    EXPECT_LT(std::fabs(a.left.back()) + std::fabs(a.right.back()), 1e-3) << c.name;
    Buffer b = c.make();
    EXPECT_EQ(a.left, b.left) << c.name << " differs between runs";
    master(a, 1, -14.0, -1.2);
    EXPECT_LE(peakDb(a, 1), -1.2 + 1e-4) << c.name;
  }
  // Each chip value sounds different.
  EXPECT_NE(chipClick(1).left, chipClick(5).left);
}

TEST(Songs, EveryGrooveRendersCleanly) {
  for (Groove groove : {Groove::Bossa, Groove::Swing, Groove::Samba}) {
    Song song;
    song.groove = groove;
    song.seconds = 12.0;
    song.tailSeconds = 2.0;
    song.guitar = groove == Groove::Bossa;
    Section a{"Dm7:2 G7:2 Cmaj7:4 A7b9:4 Dm9:2 G13:2", "", Lead::None};
    a.solo = Lead::Vibes;
    a.intensity = 0.9;
    a.pad = true;
    Section quiet{"Cmaj9:4", "E5:4", Lead::Flute};
    quiet.intensity = 0.3;
    Section end{"Cmaj9:4", "", Lead::None};
    end.ending = true;
    song.sections = {a, quiet, end};
    Buffer b = renderSong(song);
    for (std::size_t i = 0; i < b.frames(); ++i)
      ASSERT_TRUE(std::isfinite(b.left[i]) && std::isfinite(b.right[i]));
    EXPECT_GT(loudnessLufs(b, 2), -40.0);
    EXPECT_LT(peakDb(b, 2), 6.0);  // raw mix: far from runaway levels
    EXPECT_EQ(b.left.back(), 0.0f);
  }
}

TEST(Songs, ShortSongRendersToItsExactLength) {
  Song song;
  song.groove = Groove::Samba;
  song.seconds = 8.0;
  song.tailSeconds = 1.5;
  Section a{"Em9:4 A13:4", "B4:.5 D5:.5 r:.5 E5:.5 F#5:1 D5:.5 B4:.5  C#5:4", Lead::Marimba};
  Section end{"Em9:4", "E5:4", Lead::Vibes};
  end.ending = true;
  song.sections = {a, end};
  Buffer b = renderSong(song);
  EXPECT_EQ(b.frames(), secondsToFrames(8.0));
  EXPECT_GT(loudnessLufs(b, 2), -40.0);
  EXPECT_EQ(b.left, renderSong(song).left);
  EXPECT_NE(b.left, renderSong(song, kDrumPart).left);
}

}  // namespace
}  // namespace soundgen
