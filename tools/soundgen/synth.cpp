#include "synth.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <stdexcept>

namespace soundgen {

double midiToHz(double note) {
  return 440.0 * std::pow(2.0, (note - 69.0) / 12.0);
}

std::size_t secondsToFrames(double seconds) {
  return seconds <= 0 ? 0 : static_cast<std::size_t>(std::llround(seconds * kSampleRate));
}

// ---------------------------------------------------------------- random numbers

Rng::Rng(std::uint64_t seed) : state_(seed * 0x9E3779B97F4A7C15ull + 0x2545F4914F6CDD1Dull) {
  if (state_ == 0) state_ = 0x2545F4914F6CDD1Dull;
}

std::uint64_t Rng::next() {
  state_ ^= state_ >> 12;
  state_ ^= state_ << 25;
  state_ ^= state_ >> 27;
  return state_ * 0x2545F4914F6CDD1Dull;
}

double Rng::uniform() {
  return static_cast<double>(next() >> 11) * (1.0 / 9007199254740992.0);
}

int Rng::below(int n) {
  return n <= 1 ? 0 : static_cast<int>(uniform() * n);
}

// ---------------------------------------------------------------- envelope

double Adsr::at(double t, double gateLength) const {
  if (t < 0) return 0;
  auto held = [this](double u) {
    if (u < attack) return attack > 0 ? u / attack : 1.0;
    u -= attack;
    if (u < decay) return 1.0 - (1.0 - sustain) * (u / decay);
    return sustain;
  };
  if (t < gateLength) return held(t);
  if (release <= 0) return 0;
  double u = t - gateLength;
  if (u >= release) return 0;
  return held(gateLength) * (1.0 - u / release);
}

// ---------------------------------------------------------------- filters

namespace {

Biquad normalised(double b0, double b1, double b2, double a0, double a1, double a2) {
  Biquad f;
  f.b0 = b0 / a0;
  f.b1 = b1 / a0;
  f.b2 = b2 / a0;
  f.a1 = a1 / a0;
  f.a2 = a2 / a0;
  return f;
}

double clampHz(double hz) {
  return std::clamp(hz, 10.0, kSampleRate * 0.45);
}

}  // namespace

Biquad Biquad::lowpass(double hz, double q) {
  double w = kTwoPi * clampHz(hz) / kSampleRate, c = std::cos(w), alpha = std::sin(w) / (2 * q);
  return normalised((1 - c) / 2, 1 - c, (1 - c) / 2, 1 + alpha, -2 * c, 1 - alpha);
}

Biquad Biquad::highpass(double hz, double q) {
  double w = kTwoPi * clampHz(hz) / kSampleRate, c = std::cos(w), alpha = std::sin(w) / (2 * q);
  return normalised((1 + c) / 2, -(1 + c), (1 + c) / 2, 1 + alpha, -2 * c, 1 - alpha);
}

Biquad Biquad::bandpass(double hz, double q) {
  double w = kTwoPi * clampHz(hz) / kSampleRate, c = std::cos(w), alpha = std::sin(w) / (2 * q);
  return normalised(alpha, 0, -alpha, 1 + alpha, -2 * c, 1 - alpha);
}

Biquad Biquad::peaking(double hz, double q, double gainDb) {
  double a = std::pow(10.0, gainDb / 40.0);
  double w = kTwoPi * clampHz(hz) / kSampleRate, c = std::cos(w), alpha = std::sin(w) / (2 * q);
  return normalised(1 + alpha * a, -2 * c, 1 - alpha * a, 1 + alpha / a, -2 * c, 1 - alpha / a);
}

void Biquad::retune(const Biquad& other) {
  b0 = other.b0;
  b1 = other.b1;
  b2 = other.b2;
  a1 = other.a1;
  a2 = other.a2;
}

float Biquad::process(float x) {
  double y = b0 * x + b1 * x1_ + b2 * x2_ - a1 * y1_ - a2 * y2_;
  x2_ = x1_;
  x1_ = x;
  y2_ = y1_;
  y1_ = y;
  return static_cast<float>(y);
}

OnePole::OnePole(double hz) : a_(1.0 - std::exp(-kTwoPi * hz / kSampleRate)) {}

float OnePole::process(float x) {
  y_ += a_ * (x - y_);
  return static_cast<float>(y_);
}

// ---------------------------------------------------------------- buffers and mixing

PanGains PanGains::of(double pan) {
  double angle = (std::clamp(pan, -1.0, 1.0) + 1.0) * kPi / 4.0;
  return {std::cos(angle), std::sin(angle)};
}

void Buffer::add(std::size_t i, double v, double pan) {
  if (i >= left.size()) return;
  PanGains g = PanGains::of(pan);
  left[i] += static_cast<float>(v * g.left);
  right[i] += static_cast<float>(v * g.right);
}

void Buffer::mixIn(const Buffer& other, double gain, std::size_t offset) {
  for (std::size_t i = 0; i < other.frames() && i + offset < frames(); ++i) {
    left[i + offset] += static_cast<float>(other.left[i] * gain);
    right[i + offset] += static_cast<float>(other.right[i] * gain);
  }
}

void Buffer::scale(double gain) {
  for (std::size_t i = 0; i < frames(); ++i) {
    left[i] = static_cast<float>(left[i] * gain);
    right[i] = static_cast<float>(right[i] * gain);
  }
}

Mix::Mix(double seconds) : dry_(secondsToFrames(seconds)), send_(secondsToFrames(seconds)) {}

Buffer Mix::finish(double roomSize, double damping, double wetGain) const {
  Buffer out = dry_;
  out.mixIn(reverb(send_, roomSize, damping), wetGain);
  return out;
}

// ---------------------------------------------------------------- reverb

namespace {

class Comb {
 public:
  explicit Comb(std::size_t length) : buffer_(length, 0.0) {}
  double process(double x, double feedback, double damp) {
    double out = buffer_[index_];
    store_ = out * (1 - damp) + store_ * damp;
    buffer_[index_] = x + store_ * feedback;
    index_ = (index_ + 1) % buffer_.size();
    return out;
  }

 private:
  std::vector<double> buffer_;
  std::size_t index_ = 0;
  double store_ = 0;
};

class Allpass {
 public:
  explicit Allpass(std::size_t length) : buffer_(length, 0.0) {}
  double process(double x) {
    double delayed = buffer_[index_];
    buffer_[index_] = x + delayed * 0.5;
    index_ = (index_ + 1) % buffer_.size();
    return delayed - x;
  }

 private:
  std::vector<double> buffer_;
  std::size_t index_ = 0;
};

}  // namespace

Buffer reverb(const Buffer& input, double roomSize, double damping) {
  constexpr std::array<std::size_t, 8> kCombs = {1116, 1188, 1277, 1356, 1422, 1491, 1557, 1617};
  constexpr std::array<std::size_t, 4> kAllpasses = {556, 441, 341, 225};
  constexpr std::size_t kSpread = 23;
  double feedback = 0.7 + 0.28 * std::clamp(roomSize, 0.0, 1.0);
  double damp = 0.4 * std::clamp(damping, 0.0, 1.0);

  Buffer out(input.frames());
  for (int side = 0; side < 2; ++side) {
    std::size_t spread = side == 0 ? 0 : kSpread;
    std::vector<Comb> combs;
    std::vector<Allpass> allpasses;
    for (std::size_t n : kCombs) combs.emplace_back(n + spread);
    for (std::size_t n : kAllpasses) allpasses.emplace_back(n + spread);
    const std::vector<float>& in = side == 0 ? input.left : input.right;
    std::vector<float>& dest = side == 0 ? out.left : out.right;
    for (std::size_t i = 0; i < in.size(); ++i) {
      double x = 0.015 * in[i], sum = 0;
      for (Comb& c : combs) sum += c.process(x, feedback, damp);
      for (Allpass& a : allpasses) sum = a.process(sum);
      dest[i] = static_cast<float>(sum);
    }
  }
  return out;
}

// ---------------------------------------------------------------- measurement

namespace {

// The signal as written: stereo as it is, mono as the average of both sides.
std::vector<std::vector<float>> channelsOf(const Buffer& b, int channels) {
  if (channels == 2) return {b.left, b.right};
  std::vector<float> mono(b.frames());
  for (std::size_t i = 0; i < mono.size(); ++i) mono[i] = 0.5f * (b.left[i] + b.right[i]);
  return {mono};
}

// K-weighting for any rate, from the analogue prototypes of BS.1770.
std::vector<double> kWeightedSquares(const std::vector<float>& x) {
  double f0 = 1681.974450955533, g = 3.999843853973347, q = 0.7071752369554196;
  double k = std::tan(kPi * f0 / kSampleRate);
  double vh = std::pow(10.0, g / 20.0), vb = std::pow(vh, 0.4996667741545416);
  double a0 = 1.0 + k / q + k * k;
  Biquad shelf;
  shelf.b0 = (vh + vb * k / q + k * k) / a0;
  shelf.b1 = 2.0 * (k * k - vh) / a0;
  shelf.b2 = (vh - vb * k / q + k * k) / a0;
  shelf.a1 = 2.0 * (k * k - 1.0) / a0;
  shelf.a2 = (1.0 - k / q + k * k) / a0;
  f0 = 38.13547087602444;
  q = 0.5003270373238773;
  k = std::tan(kPi * f0 / kSampleRate);
  Biquad highpass;
  highpass.b0 = 1.0;
  highpass.b1 = -2.0;
  highpass.b2 = 1.0;
  highpass.a1 = 2.0 * (k * k - 1.0) / (1.0 + k / q + k * k);
  highpass.a2 = (1.0 - k / q + k * k) / (1.0 + k / q + k * k);
  std::vector<double> squares(x.size());
  for (std::size_t i = 0; i < x.size(); ++i) {
    double y = highpass.process(shelf.process(x[i]));
    squares[i] = y * y;
  }
  return squares;
}

}  // namespace

double peakDb(const Buffer& buffer, int channels) {
  double peak = 0;
  for (const auto& ch : channelsOf(buffer, channels))
    for (float v : ch) peak = std::max(peak, static_cast<double>(std::fabs(v)));
  return peak > 0 ? 20.0 * std::log10(peak) : -200.0;
}

double loudnessLufs(const Buffer& buffer, int channels) {
  std::size_t n = buffer.frames();
  if (n == 0) return -200.0;
  std::vector<double> power(n, 0.0);
  for (const auto& ch : channelsOf(buffer, channels)) {
    std::vector<double> sq = kWeightedSquares(ch);
    for (std::size_t i = 0; i < n; ++i) power[i] += sq[i];
  }
  std::size_t block = secondsToFrames(0.4), step = secondsToFrames(0.1);
  std::vector<double> blocks;
  if (n < block) {
    double sum = 0;
    for (double p : power) sum += p;
    blocks.push_back(sum / static_cast<double>(n));
  } else {
    std::vector<double> prefix(n + 1, 0.0);
    for (std::size_t i = 0; i < n; ++i) prefix[i + 1] = prefix[i] + power[i];
    for (std::size_t start = 0; start + block <= n; start += step)
      blocks.push_back((prefix[start + block] - prefix[start]) / static_cast<double>(block));
  }
  auto lufs = [](double meanSquare) { return -0.691 + 10.0 * std::log10(meanSquare); };
  auto gatedMean = [&](double thresholdLufs) {
    double sum = 0;
    int count = 0;
    for (double z : blocks)
      if (z > 0 && lufs(z) > thresholdLufs) {
        sum += z;
        ++count;
      }
    return count ? sum / count : 0.0;
  };
  double ungated = gatedMean(-70.0);
  if (ungated <= 0) return -200.0;
  double gated = gatedMean(lufs(ungated) - 10.0);
  return gated > 0 ? lufs(gated) : lufs(ungated);
}

// ---------------------------------------------------------------- dynamics and edits

void limitPeaks(Buffer& buffer, int channels, double ceilingDb, double attackSeconds,
                double releaseSeconds) {
  std::size_t n = buffer.frames();
  if (n == 0) return;
  double ceiling = std::pow(10.0, ceilingDb / 20.0);
  std::vector<double> gain(n, 1.0);
  for (std::size_t i = 0; i < n; ++i) {
    double level = channels == 2 ? std::max(std::fabs(buffer.left[i]), std::fabs(buffer.right[i]))
                                 : std::fabs(0.5 * (buffer.left[i] + buffer.right[i]));
    if (level > ceiling) gain[i] = ceiling / level;
  }
  // Both passes only lower the gain, so no sample can end above the ceiling.
  double attackStep = 1.0 / std::max(1.0, attackSeconds * kSampleRate);
  double releaseStep = 1.0 / std::max(1.0, releaseSeconds * kSampleRate);
  for (std::size_t i = n - 1; i-- > 0;) gain[i] = std::min(gain[i], gain[i + 1] + attackStep);
  for (std::size_t i = 1; i < n; ++i) gain[i] = std::min(gain[i], gain[i - 1] + releaseStep);
  for (std::size_t i = 0; i < n; ++i) {
    buffer.left[i] = static_cast<float>(buffer.left[i] * gain[i]);
    buffer.right[i] = static_cast<float>(buffer.right[i] * gain[i]);
  }
}

void master(Buffer& buffer, int channels, double targetLufs, double ceilingDb, double maxLimitDb) {
  // The limiter takes a little loudness away, so measure and correct a few times; the last
  // word belongs to the limiter so the ceiling always holds.
  double original = peakDb(buffer, channels);
  double totalGain = 0;
  for (int pass = 0; pass < 4; ++pass) {
    double now = loudnessLufs(buffer, channels);
    if (now < -150) return;
    double gain = targetLufs - now;
    gain = std::min(gain, ceilingDb + maxLimitDb - original - totalGain);
    totalGain += gain;
    buffer.scale(std::pow(10.0, gain / 20.0));
    limitPeaks(buffer, channels, ceilingDb, 0.002, 0.06);
  }
}

void fadeIn(Buffer& buffer, double seconds) {
  std::size_t n = std::min(buffer.frames(), secondsToFrames(seconds));
  for (std::size_t i = 0; i < n; ++i) {
    double g = static_cast<double>(i) / static_cast<double>(n);
    buffer.left[i] = static_cast<float>(buffer.left[i] * g);
    buffer.right[i] = static_cast<float>(buffer.right[i] * g);
  }
}

void fadeOut(Buffer& buffer, double seconds) {
  std::size_t total = buffer.frames(), n = std::min(total, secondsToFrames(seconds));
  for (std::size_t k = 0; k < n; ++k) {
    std::size_t i = total - n + k;
    double g = 1.0 - static_cast<double>(k + 1) / static_cast<double>(n);
    g = g * g;  // a gentle curve that still ends in silence
    buffer.left[i] = static_cast<float>(buffer.left[i] * g);
    buffer.right[i] = static_cast<float>(buffer.right[i] * g);
  }
}

void trim(Buffer& buffer, double seconds) {
  std::size_t n = secondsToFrames(seconds);
  buffer.left.resize(n, 0.0f);
  buffer.right.resize(n, 0.0f);
}

// ---------------------------------------------------------------- WAV

namespace {

void put16(std::vector<std::uint8_t>& out, std::uint32_t v) {
  out.push_back(static_cast<std::uint8_t>(v & 0xff));
  out.push_back(static_cast<std::uint8_t>((v >> 8) & 0xff));
}

void put32(std::vector<std::uint8_t>& out, std::uint32_t v) {
  put16(out, v & 0xffff);
  put16(out, v >> 16);
}

void putTag(std::vector<std::uint8_t>& out, const char* tag) {
  for (int i = 0; i < 4; ++i) out.push_back(static_cast<std::uint8_t>(tag[i]));
}

std::int16_t toPcm(double v) {
  return static_cast<std::int16_t>(std::clamp(std::lround(v * 32767.0), -32768l, 32767l));
}

}  // namespace

std::vector<std::uint8_t> encodeWav(const Buffer& buffer, int channels) {
  if (channels != 1 && channels != 2) throw std::invalid_argument("WAV: 1 or 2 channels");
  auto data = channelsOf(buffer, channels);
  std::uint32_t frames = static_cast<std::uint32_t>(buffer.frames());
  std::uint32_t blockAlign = 2u * static_cast<std::uint32_t>(channels);
  std::uint32_t dataBytes = frames * blockAlign;
  std::vector<std::uint8_t> out;
  out.reserve(44 + dataBytes);
  putTag(out, "RIFF");
  put32(out, 36 + dataBytes);
  putTag(out, "WAVE");
  putTag(out, "fmt ");
  put32(out, 16);
  put16(out, 1);  // PCM
  put16(out, static_cast<std::uint32_t>(channels));
  put32(out, kSampleRate);
  put32(out, kSampleRate * blockAlign);
  put16(out, blockAlign);
  put16(out, 16);
  putTag(out, "data");
  put32(out, dataBytes);
  for (std::size_t i = 0; i < frames; ++i)
    for (const auto& ch : data) put16(out, static_cast<std::uint16_t>(toPcm(ch[i])));
  return out;
}

void writeWav(const std::string& path, const Buffer& buffer, int channels) {
  std::vector<std::uint8_t> bytes = encodeWav(buffer, channels);
  std::ofstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot write " + path);
  file.write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
  if (!file) throw std::runtime_error("failed writing " + path);
}

}  // namespace soundgen
