#include "instruments.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace soundgen {

namespace {

// Closes every note window with a 5 ms fade, so a cut-off tail never clicks.
double windowEnd(std::size_t framesLeft) {
  constexpr double kFade = 0.005 * kSampleRate;
  return framesLeft >= kFade ? 1.0 : static_cast<double>(framesLeft) / kFade;
}

// Runs sample(t) for every frame of a note and adds it at the note's place.
template <typename F>
void render(Mix& mix, double start, double seconds, const Place& place, F&& sample) {
  PanGains pan = PanGains::of(place.pan);
  std::size_t first = secondsToFrames(start), count = secondsToFrames(seconds);
  for (std::size_t k = 0; k < count && first + k < mix.frames(); ++k) {
    double t = static_cast<double>(k) / kSampleRate;
    mix.add(first + k, place.gain * sample(t) * windowEnd(count - k), pan, place.send);
  }
}

// Smooth release after the gate: 1 while held, then an exponential fade.
double gateFade(double t, double gate, double releaseSeconds) {
  return t < gate ? 1.0 : std::exp(-(t - gate) / releaseSeconds);
}

// Quick fade from silence, avoiding clicks at the note start.
double onset(double t, double seconds) {
  return t < seconds ? t / seconds : 1.0;
}

// A decaying sine partial.
double partial(double t, double hz, double amplitude, double decaySeconds) {
  if (hz >= kSampleRate * 0.45) return 0;
  return amplitude * std::exp(-t / decaySeconds) * std::sin(kTwoPi * hz * t);
}

// Karplus-Strong string: a noise burst circulating in a tuned, damped delay loop.
class PluckedString {
 public:
  PluckedString(double hz, double decaySeconds, double brightness, Rng& rng) {
    double period = kSampleRate / hz;
    double loop = period - 0.5;  // the averaging filter adds half a sample
    std::size_t whole = static_cast<std::size_t>(std::floor(loop));
    double fraction = loop - static_cast<double>(whole);
    if (fraction < 0.1 && whole > 2) {
      --whole;
      fraction += 1.0;
    }
    allpass_ = (1.0 - fraction) / (1.0 + fraction);
    loss_ = std::pow(0.001, 1.0 / (decaySeconds * hz));
    line_.assign(std::max<std::size_t>(whole, 2), 0.0);
    OnePole soften(std::clamp(brightness * 8000.0, 200.0, 16000.0));
    double mean = 0;
    for (double& v : line_) {
      v = soften.process(static_cast<float>(rng.bipolar()));
      mean += v;
    }
    mean /= static_cast<double>(line_.size());
    double peak = 1e-9;
    for (double& v : line_) {
      v -= mean;
      peak = std::max(peak, std::fabs(v));
    }
    for (double& v : line_) v /= peak;
  }

  double next() {
    double current = line_[index_];
    double averaged = 0.5 * (current + previous_);
    previous_ = current;
    double shifted = allpass_ * averaged + apIn_ - allpass_ * apOut_;
    apIn_ = averaged;
    apOut_ = shifted;
    line_[index_] = loss_ * shifted;
    index_ = (index_ + 1) % line_.size();
    return current;
  }

 private:
  std::vector<double> line_;
  std::size_t index_ = 0;
  double previous_ = 0, allpass_ = 0, apIn_ = 0, apOut_ = 0, loss_ = 1;
};

// Harmonic tone (sawtooth, or odd harmonics only) under an enveloped lowpass: the common
// engine of the brass and reeds. Harmonics come from the Chebyshev recurrence, so one sine
// and one cosine per sample are enough.
struct Tone {
  bool oddOnly = false;
  Adsr envelope{0.03, 0.15, 0.8, 0.1};
  double cutoffBase = 1.5;   // lowpass cutoff in multiples of the pitch, when quiet
  double cutoffSwing = 6.0;  // ... added at full envelope and velocity
  double vibratoRate = 5.5;
  double muteHz = 0;       // > 0: a nasal resonance like a cup mute
  double detuneCents = 0;  // > 0: three voices spread by this much
  double level = 0.35;
};

void harmonicVoice(Mix& mix, const Note& note, const Place& place, const Tone& tone) {
  double seconds = note.length + tone.envelope.release + 0.02;
  Biquad lowpass, mute = Biquad::peaking(std::max(tone.muteHz, 100.0), 1.2, 12.0);
  Biquad lowCut = Biquad::highpass(tone.muteHz > 0 ? tone.muteHz * 0.4 : 30.0, 0.7);
  std::array<double, 3> phases = {0, 0.31, 0.67};
  int voices = tone.detuneCents > 0 ? 3 : 1;
  std::size_t frame = 0;
  render(mix, note.start, seconds, place, [&](double t) {
    double env = tone.envelope.at(t, note.length);
    double progress = note.length > 0 ? std::min(1.0, t / note.length) : 1.0;
    double vibrato =
        note.vibrato * std::sin(kTwoPi * tone.vibratoRate * t) * std::min(1.0, t / 0.25);
    double pitch = note.pitch + note.bend * progress + vibrato;
    double hz = midiToHz(pitch);
    if (frame++ % 32 == 0) {
      double cutoff =
          hz * (tone.cutoffBase + tone.cutoffSwing * note.velocity * std::pow(env, 1.5));
      lowpass.retune(Biquad::lowpass(cutoff, 0.8));
    }
    int harmonics = std::clamp(static_cast<int>(15000.0 / hz), 1, 40);
    double sum = 0;
    for (int v = 0; v < voices; ++v) {
      double detune = voices == 1 ? 1.0 : std::pow(2.0, (v - 1) * tone.detuneCents / 1200.0);
      phases[v] += hz * detune / kSampleRate;
      phases[v] -= std::floor(phases[v]);
      double theta = kTwoPi * phases[v];
      double s1 = std::sin(theta), twoCos = 2.0 * std::cos(theta);
      double prev = 0, cur = s1;
      for (int k = 1; k <= harmonics; ++k) {
        if (!tone.oddOnly || k % 2 == 1) sum += cur / k;
        double following = twoCos * cur - prev;
        prev = cur;
        cur = following;
      }
    }
    double x = lowpass.process(static_cast<float>(sum / voices));
    if (tone.muteHz > 0) x = mute.process(lowCut.process(static_cast<float>(x))) * 0.5;
    return tone.level * note.velocity * env * x;
  });
}

// Filtered noise hit with an exponential decay.
template <typename Filter>
void noiseHit(Mix& mix, double t, double seconds, double decay, double amplitude,
              const Place& place, Rng& rng, Filter filter) {
  render(mix, t, seconds, place, [&](double u) {
    return amplitude * std::exp(-u / decay) * onset(u, 0.0008) * filter(rng.bipolar());
  });
}

}  // namespace

// ---------------------------------------------------------------- pitched

void ePiano(Mix& mix, const Note& note, const Place& place) {
  double hz = midiToHz(note.pitch);
  double decay = 1.8 * std::pow(220.0 / hz, 0.35);
  double seconds = note.length + 0.4;
  PanGains base = PanGains::of(place.pan);
  std::size_t first = secondsToFrames(note.start), count = secondsToFrames(seconds);
  for (std::size_t k = 0; k < count && first + k < mix.frames(); ++k) {
    double t = static_cast<double>(k) / kSampleRate;
    double global = static_cast<double>(first + k) / kSampleRate;
    double index = note.velocity * (0.35 + 2.0 * std::exp(-t / 0.2));
    double body = std::sin(kTwoPi * hz * t + index * std::sin(kTwoPi * hz * t));
    double tine = hz * 14.0 < 16000 ? 0.18 * note.velocity * std::exp(-t / 0.025) *
                                          std::sin(kTwoPi * hz * 14.0 * t)
                                    : 0.0;
    double amp = 0.32 * note.velocity * onset(t, 0.002) * std::exp(-t / decay) *
                 gateFade(t, note.length, 0.09);
    double v = place.gain * amp * (body + tine);
    double sway = 0.22 * std::sin(kTwoPi * 2.6 * global);  // the classic stereo tremolo
    PanGains g{base.left * (1.0 + sway), base.right * (1.0 - sway)};
    mix.add(first + k, v, g, place.send);
  }
}

void nylonGuitar(Mix& mix, const Note& note, const Place& place, Rng& rng) {
  double hz = midiToHz(note.pitch);
  PluckedString string(hz, 2.2 * std::pow(196.0 / hz, 0.3), 0.25 + 0.35 * note.velocity, rng);
  Biquad warmth = Biquad::lowpass(3500.0, 0.7), body = Biquad::peaking(180.0, 1.5, 4.0);
  render(mix, note.start, note.length + 0.25, place, [&](double t) {
    double x = body.process(warmth.process(static_cast<float>(string.next())));
    return 0.22 * note.velocity * onset(t, 0.001) * gateFade(t, note.length, 0.07) * x;
  });
}

void upright(Mix& mix, const Note& note, const Place& place, Rng& rng) {
  double hz = midiToHz(note.pitch);
  PluckedString string(hz, 3.0, 0.12 + 0.1 * note.velocity, rng);
  Biquad round = Biquad::lowpass(900.0, 0.7);
  render(mix, note.start, note.length + 0.15, place, [&](double t) {
    double thump = 0.8 * std::exp(-t / 0.9) * std::sin(kTwoPi * hz * t);
    double x = round.process(static_cast<float>(0.6 * string.next() + thump));
    return 0.45 * note.velocity * onset(t, 0.004) * gateFade(t, note.length, 0.05) * x;
  });
}

void vibes(Mix& mix, const Note& note, const Place& place) {
  double hz = midiToHz(note.pitch);
  double decay = 2.6 * std::pow(440.0 / hz, 0.3);
  std::size_t first = secondsToFrames(note.start);
  render(mix, note.start, note.length + 0.6, place, [&](double t) {
    double global = static_cast<double>(first) / kSampleRate + t;
    double motor = 1.0 - 0.28 * (0.5 + 0.5 * std::sin(kTwoPi * 5.2 * global));
    double v = partial(t, hz, 1.0, decay) + partial(t, hz * 4.0, 0.3 * note.velocity, 0.45) +
               partial(t, hz * 10.0, 0.06 * note.velocity, 0.1);
    return 0.3 * note.velocity * onset(t, 0.0015) * motor * gateFade(t, note.length + 0.2, 0.15) *
           v;
  });
}

void marimba(Mix& mix, const Note& note, const Place& place) {
  double hz = midiToHz(note.pitch);
  double decay = 0.45 * std::pow(330.0 / hz, 0.5);
  render(mix, note.start, std::min(note.length, 1.0) + decay * 4.0, place, [&](double t) {
    double v = partial(t, hz, 1.0, decay) + partial(t, hz * 4.0, 0.35 * note.velocity, 0.06) +
               partial(t, hz * 9.8, 0.08 * note.velocity, 0.015);
    return 0.4 * note.velocity * onset(t, 0.001) * v;
  });
}

void celesta(Mix& mix, const Note& note, const Place& place) {
  double hz = midiToHz(note.pitch);
  render(mix, note.start, note.length + 1.2, place, [&](double t) {
    double v = partial(t, hz, 1.0, 0.9) + partial(t, hz * 2.0, 0.25, 0.35) +
               partial(t, hz * 3.0, 0.08, 0.15) + partial(t, hz * 5.43, 0.05, 0.05);
    return 0.3 * note.velocity * onset(t, 0.0008) * gateFade(t, note.length + 0.5, 0.3) * v;
  });
}

void flute(Mix& mix, const Note& note, const Place& place, Rng& rng) {
  Adsr envelope{0.06, 0.12, 0.82, 0.12};
  Biquad breathBand = Biquad::bandpass(midiToHz(note.pitch) * 2.0, 1.5);
  double phase = 0;
  render(mix, note.start, note.length + envelope.release + 0.02, place, [&](double t) {
    double vibrato = (note.vibrato > 0 ? note.vibrato : 0.12) * std::sin(kTwoPi * 5.0 * t) *
                     std::clamp((t - 0.15) / 0.3, 0.0, 1.0);
    double scoop = -0.25 * std::exp(-t / 0.03);
    double progress = note.length > 0 ? std::min(1.0, t / note.length) : 1.0;
    double hz = midiToHz(note.pitch + vibrato + scoop + note.bend * progress);
    phase += hz / kSampleRate;
    phase -= std::floor(phase);
    double theta = kTwoPi * phase;
    double tone = std::sin(theta) + 0.2 * std::sin(2 * theta) + 0.06 * std::sin(3 * theta);
    double breath = 0.12 * breathBand.process(static_cast<float>(rng.bipolar()));
    return 0.3 * note.velocity * envelope.at(t, note.length) * (tone + breath);
  });
}

void trumpet(Mix& mix, const Note& note, const Place& place, bool muted) {
  Tone tone;
  tone.envelope = {0.025, 0.12, 0.78, 0.09};
  tone.cutoffBase = muted ? 2.0 : 1.8;
  tone.cutoffSwing = muted ? 5.0 : 8.0;
  tone.muteHz = muted ? 1600.0 : 0.0;
  tone.level = muted ? 0.4 : 0.3;
  harmonicVoice(mix, note, place, tone);
}

void trombone(Mix& mix, const Note& note, const Place& place) {
  Tone tone;
  tone.envelope = {0.05, 0.2, 0.85, 0.15};
  tone.cutoffBase = 1.2;
  tone.cutoffSwing = 5.0;
  tone.vibratoRate = 4.5;
  tone.level = 0.4;
  harmonicVoice(mix, note, place, tone);
}

void clarinet(Mix& mix, const Note& note, const Place& place) {
  Tone tone;
  tone.oddOnly = true;
  tone.envelope = {0.035, 0.1, 0.85, 0.08};
  tone.cutoffBase = 2.5;
  tone.cutoffSwing = 4.0;
  tone.vibratoRate = 5.0;
  tone.level = 0.4;
  harmonicVoice(mix, note, place, tone);
}

void pad(Mix& mix, const Note& note, const Place& place) {
  Tone tone;
  tone.envelope = {0.6, 0.5, 0.8, 1.0};
  tone.cutoffBase = 2.0;
  tone.cutoffSwing = 1.5;
  tone.detuneCents = 7.0;
  tone.level = 0.12;
  harmonicVoice(mix, note, place, tone);
}

void pizzicato(Mix& mix, const Note& note, const Place& place, Rng& rng) {
  double hz = midiToHz(note.pitch);
  PluckedString string(hz, 0.5, 0.3, rng);
  Biquad body = Biquad::lowpass(2500.0, 0.8);
  render(mix, note.start, 0.6, place, [&](double t) {
    double x = body.process(static_cast<float>(string.next()));
    return 0.3 * note.velocity * onset(t, 0.002) * std::exp(-t / 0.18) * x;
  });
}

// ---------------------------------------------------------------- percussion

void kick(Mix& mix, double t, double velocity, const Place& place) {
  double phase = 0;
  render(mix, t, 0.5, place, [&](double u) {
    double hz = 50.0 + 70.0 * std::exp(-u / 0.03);
    phase += hz / kSampleRate;
    double body = std::sin(kTwoPi * phase) * std::exp(-u / 0.2);
    return 0.7 * velocity * onset(u, 0.002) * body;
  });
}

void rimClick(Mix& mix, double t, double velocity, const Place& place, Rng& rng) {
  Biquad snap = Biquad::bandpass(3200.0, 1.0);
  render(mix, t, 0.12, place, [&](double u) {
    double ping = partial(u, 1750.0, 0.7, 0.012) + partial(u, 640.0, 0.5, 0.025);
    double click = snap.process(static_cast<float>(rng.bipolar())) * std::exp(-u / 0.004);
    return 0.35 * velocity * onset(u, 0.0005) * (ping + click);
  });
}

void shaker(Mix& mix, double t, double velocity, const Place& place, Rng& rng) {
  Biquad high = Biquad::highpass(4500.0, 0.7), band = Biquad::bandpass(7500.0, 0.8);
  render(mix, t, 0.14, place, [&](double u) {
    double env = std::min(1.0, u / 0.012) * std::exp(-u / 0.045);
    return 0.25 * velocity * env * band.process(high.process(static_cast<float>(rng.bipolar())));
  });
}

void brushTap(Mix& mix, double t, double velocity, const Place& place, Rng& rng) {
  Biquad band = Biquad::bandpass(2800.0, 0.6);
  noiseHit(mix, t, 0.25, 0.05, 0.3 * velocity, place, rng,
           [&](double x) { return band.process(static_cast<float>(x)); });
}

void brushSweep(Mix& mix, double t, double seconds, double velocity, const Place& place, Rng& rng) {
  Biquad band = Biquad::bandpass(2400.0, 0.5);
  render(mix, t, seconds, place, [&](double u) {
    double shape = std::sin(kPi * std::clamp(u / seconds, 0.0, 1.0));
    return 0.08 * velocity * shape * band.process(static_cast<float>(rng.bipolar()));
  });
}

void ride(Mix& mix, double t, double velocity, const Place& place, Rng& rng) {
  constexpr std::array<double, 6> kModes = {523.0, 789.0, 1187.0, 1663.0, 2390.0, 3311.0};
  Biquad sizzle = Biquad::highpass(6000.0, 0.7);
  render(mix, t, 1.4, place, [&](double u) {
    double metal = 0;
    for (std::size_t m = 0; m < kModes.size(); ++m)
      metal += partial(u, kModes[m] * 1.9, 0.12, 0.25 + 0.1 * static_cast<double>(m));
    double hiss = sizzle.process(static_cast<float>(rng.bipolar())) * std::exp(-u / 0.35);
    return 0.12 * velocity * onset(u, 0.0005) * (metal + 0.5 * hiss);
  });
}

void hiHat(Mix& mix, double t, double velocity, bool open, const Place& place, Rng& rng) {
  Biquad high = Biquad::highpass(7000.0, 0.7);
  double decay = open ? 0.25 : 0.035;
  noiseHit(mix, t, decay * 5, decay, 0.2 * velocity, place, rng,
           [&](double x) { return high.process(static_cast<float>(x)); });
}

void conga(Mix& mix, double t, double velocity, double hz, bool slap, const Place& place,
           Rng& rng) {
  Biquad slapBand = Biquad::bandpass(2000.0, 0.8);
  double phase = 0;
  render(mix, t, 0.5, place, [&](double u) {
    double pitch = hz * (1.0 + 0.06 * std::exp(-u / 0.02));
    phase += pitch / kSampleRate;
    double skin = std::sin(kTwoPi * phase) * std::exp(-u / (slap ? 0.06 : 0.16)) +
                  0.3 * std::sin(kTwoPi * phase * 1.52) * std::exp(-u / 0.05);
    double crack = slapBand.process(static_cast<float>(rng.bipolar())) *
                   std::exp(-u / (slap ? 0.02 : 0.005)) * (slap ? 1.2 : 0.4);
    return 0.4 * velocity * onset(u, 0.001) * (skin + crack);
  });
}

void woodBlock(Mix& mix, double t, double velocity, double hz, const Place& place, Rng& rng) {
  Biquad knock = Biquad::bandpass(hz * 1.5, 2.0);
  render(mix, t, 0.15, place, [&](double u) {
    double body = partial(u, hz, 1.0, 0.03) + partial(u, hz * 2.7, 0.3, 0.012);
    double click = knock.process(static_cast<float>(rng.bipolar())) * std::exp(-u / 0.003);
    return 0.4 * velocity * onset(u, 0.0005) * (body + click);
  });
}

void cymbal(Mix& mix, double t, double seconds, double velocity, bool swell, const Place& place,
            Rng& rng) {
  Biquad high = Biquad::highpass(3500.0, 0.6), air = Biquad::peaking(9000.0, 1.0, 4.0);
  render(mix, t, seconds, place, [&](double u) {
    double x = air.process(high.process(static_cast<float>(rng.bipolar())));
    double env = swell ? std::pow(std::clamp(u / seconds, 0.0, 1.0), 2.5)
                       : onset(u, 0.001) * std::exp(-u / (seconds * 0.3));
    if (swell && u > seconds - 0.01) env *= (seconds - u) / 0.01;
    return 0.25 * velocity * env * x;
  });
}

void timpani(Mix& mix, double t, double velocity, double pitch, const Place& place, Rng& rng) {
  double hz = midiToHz(pitch);
  OnePole felt(400.0);
  render(mix, t, 1.6, place, [&](double u) {
    double drum = partial(u, hz, 1.0, 0.8) + partial(u, hz * 1.5, 0.5, 0.5) +
                  partial(u, hz * 1.98, 0.25, 0.35);
    double mallet = felt.process(static_cast<float>(rng.bipolar())) * std::exp(-u / 0.02);
    return 0.5 * velocity * onset(u, 0.002) * (drum + 2.0 * mallet);
  });
}

void triangle(Mix& mix, double t, double velocity, const Place& place) {
  render(mix, t, 1.5, place, [&](double u) {
    double v =
        partial(u, 2637.0, 1.0, 0.6) + partial(u, 6811.0, 0.5, 0.4) + partial(u, 9870.0, 0.3, 0.3);
    return 0.12 * velocity * onset(u, 0.0005) * v;
  });
}

}  // namespace soundgen
