// The small synthesis kit behind every sound of the game: random numbers with a fixed seed,
// envelopes, filters, a stereo buffer with a reverb send, loudness measurement, a peak limiter
// and the WAV writer. Everything works offline on whole buffers, so the same program always
// writes the same samples.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace soundgen {

constexpr int kSampleRate = 44100;
constexpr double kPi = 3.14159265358979323846;
constexpr double kTwoPi = 2.0 * kPi;

// Equal temperament, A4 = MIDI 69 = 440 Hz. Fractional notes bend smoothly.
double midiToHz(double note);
std::size_t secondsToFrames(double seconds);

// xorshift64* generator: fixed, portable sequence for a given seed (the standard
// distributions are not guaranteed to give the same numbers everywhere).
class Rng {
 public:
  explicit Rng(std::uint64_t seed);
  std::uint64_t next();
  double uniform();                                   // [0, 1)
  double bipolar() { return uniform() * 2.0 - 1.0; }  // [-1, 1)
  double range(double low, double high) { return low + (high - low) * uniform(); }
  int below(int n);  // [0, n)
  bool chance(double p) { return uniform() < p; }

 private:
  std::uint64_t state_;
};

// Attack, decay to sustain, release after the gate closes; times in seconds.
struct Adsr {
  double attack = 0.005;
  double decay = 0.1;
  double sustain = 0.7;
  double release = 0.1;
  // Level at time t after the note began, for a gate held for gateLength seconds.
  double at(double t, double gateLength) const;
  double tail() const { return release; }
};

// Second-order filter (RBJ cookbook), direct form I.
class Biquad {
 public:
  static Biquad lowpass(double hz, double q);
  static Biquad highpass(double hz, double q);
  static Biquad bandpass(double hz, double q);  // 0 dB at the centre
  static Biquad peaking(double hz, double q, double gainDb);
  Biquad() = default;
  void retune(const Biquad& other);  // takes new coefficients, keeps the state
  float process(float x);
  double b0 = 1, b1 = 0, b2 = 0, a1 = 0, a2 = 0;

 private:
  double x1_ = 0, x2_ = 0, y1_ = 0, y2_ = 0;
};

// One-pole lowpass for smoothing and gentle darkening.
class OnePole {
 public:
  explicit OnePole(double hz);
  float process(float x);

 private:
  double a_ = 0, y_ = 0;
};

// Equal-power pan gains (-1 left .. +1 right), worked out once per note.
struct PanGains {
  double left = 0.7071067811865476, right = 0.7071067811865476;
  static PanGains of(double pan);
};

// Stereo float buffer. Mono sounds are rendered in the centre and folded down on writing.
struct Buffer {
  std::vector<float> left, right;
  Buffer() = default;
  explicit Buffer(std::size_t frames) : left(frames, 0.0f), right(frames, 0.0f) {}
  std::size_t frames() const { return left.size(); }
  // Adds v at frame i with an equal-power pan (-1 left .. +1 right); out of range is ignored.
  void add(std::size_t i, double v, double pan);
  void mixIn(const Buffer& other, double gain, std::size_t offset = 0);
  void scale(double gain);
};

// A mixing desk with one reverb send: instruments add to the dry bus and, by their send
// level, to the reverb bus.
class Mix {
 public:
  explicit Mix(double seconds);
  std::size_t frames() const { return dry_.frames(); }
  void add(std::size_t i, double v, const PanGains& pan, double send) {
    if (i >= dry_.frames()) return;
    dry_.left[i] += static_cast<float>(v * pan.left);
    dry_.right[i] += static_cast<float>(v * pan.right);
    if (send > 0) {
      send_.left[i] += static_cast<float>(v * send * pan.left);
      send_.right[i] += static_cast<float>(v * send * pan.right);
    }
  }
  // Dry bus plus the reverberated send bus.
  Buffer finish(double roomSize, double damping, double wetGain) const;

 private:
  Buffer dry_, send_;
};

// Freeverb-style reverb: eight damped combs and four allpasses per side. Returns the wet
// signal only.
Buffer reverb(const Buffer& input, double roomSize, double damping);

// Measurement, for mono (channels 1: the fold-down) or stereo files.
double peakDb(const Buffer& buffer, int channels);
// Integrated loudness after ITU-R BS.1770 (K-weighting, 400 ms blocks, gating). Sounds
// shorter than one block are measured over their own length.
double loudnessLufs(const Buffer& buffer, int channels);

// Brick-wall limiter with a short linear attack ramp ahead of each peak and a slower release.
void limitPeaks(Buffer& buffer, int channels, double ceilingDb, double attackSeconds,
                double releaseSeconds);
// Brings a sound towards the wanted loudness, never letting a sample pass the ceiling. The
// limiter may take at most maxLimitDb off the highest peak: a click squashed harder than that
// loses its snap, so such a sound is left quieter than asked.
void master(Buffer& buffer, int channels, double targetLufs, double ceilingDb,
            double maxLimitDb = 3.0);

void fadeIn(Buffer& buffer, double seconds);
void fadeOut(Buffer& buffer, double seconds);
void trim(Buffer& buffer, double seconds);  // exact length, padding with silence

// 16-bit PCM little-endian WAV; channels 1 folds the stereo buffer down.
std::vector<std::uint8_t> encodeWav(const Buffer& buffer, int channels);
void writeWav(const std::string& path, const Buffer& buffer, int channels);

}  // namespace soundgen
