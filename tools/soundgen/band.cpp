#include "band.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace soundgen {

namespace {

// Loudness of each lead, so that a tune keeps its level when it changes hands.
double leadGain(Lead lead) {
  switch (lead) {
    case Lead::Vibes:
      return 1.0;
    case Lead::Flute:
      return 0.9;
    case Lead::MutedTrumpet:
      return 0.55;
    case Lead::Marimba:
      return 1.0;
    case Lead::Clarinet:
      return 0.5;
    case Lead::EPiano:
      return 1.2;
    case Lead::Celesta:
      return 1.0;
    case Lead::Guitar:
      return 1.6;
    case Lead::None:
      break;
  }
  return 0.0;
}

void playNote(Mix& mix, const Note& note, Lead lead, const Place& place, Rng& rng) {
  switch (lead) {
    case Lead::Vibes:
      vibes(mix, note, place);
      break;
    case Lead::Flute:
      flute(mix, note, place, rng);
      break;
    case Lead::MutedTrumpet:
      trumpet(mix, note, place, true);
      break;
    case Lead::Marimba:
      marimba(mix, note, place);
      break;
    case Lead::Clarinet:
      clarinet(mix, note, place);
      break;
    case Lead::EPiano:
      ePiano(mix, note, place);
      break;
    case Lead::Celesta:
      celesta(mix, note, place);
      break;
    case Lead::Guitar:
      nylonGuitar(mix, note, place, rng);
      break;
    case Lead::None:
      break;
  }
}

struct Line {
  std::vector<ScoreNote> notes;
  Lead lead;
  bool counter;
};

struct Span {
  double begin, end;
  const Section* section;
};

// The whole song laid out on one beat axis, key changes applied.
struct Timeline {
  std::vector<Chord> chart;
  std::vector<Line> lines;
  std::vector<Span> spans;
  double beats = 0;

  const Section& sectionAt(double beat) const {
    for (const Span& s : spans)
      if (beat < s.end - 1e-9) return *s.section;
    return *spans.back().section;
  }
  const Span& spanAt(double beat) const {
    for (const Span& s : spans)
      if (beat < s.end - 1e-9) return s;
    return spans.back();
  }
};

Timeline layOut(const Song& song) {
  Timeline tl;
  for (const Section& section : song.sections) {
    double begin = tl.beats;
    std::vector<Chord> chart = parseChords(section.chords, begin);
    double length = 0;
    for (Chord& chord : chart) {
      chord.root = ((chord.root + section.transpose) % 12 + 12) % 12;
      length += chord.beats;
    }
    if (std::fmod(length, 4.0) != 0) throw std::logic_error("section not in whole bars");
    auto addLine = [&](const std::string& text, Lead lead, bool counter) {
      if (text.empty()) return;
      double written = 0;
      auto notes = transposed(parseMelody(text, begin, &written), section.transpose);
      if (std::fabs(written - length) > 1e-6)
        throw std::logic_error("tune of " + std::to_string(written) + " beats over a chart of " +
                               std::to_string(length));
      tl.lines.push_back({std::move(notes), lead, counter});
    };
    addLine(section.melody, section.lead, false);
    addLine(section.counter, section.counterLead, true);
    tl.chart.insert(tl.chart.end(), chart.begin(), chart.end());
    tl.spans.push_back({begin, begin + length, &section});
    tl.beats += length;
  }
  return tl;
}

// ---------------------------------------------------------------- bass

int bassRoot(int pc) {
  return 28 + ((pc - 4) % 12 + 12) % 12;
}  // E1 .. D#2

int fifthOf(int root) {
  return root + 7 <= 45 ? root + 7 : root - 5;
}

// A chord tone of the chart chord nearest to a pitch, within the bass range.
int nearestTone(const Chord& chord, int near, Rng& rng) {
  int best = near, bestDistance = 99;
  for (int interval : chord.intervals) {
    if (interval > 11 || interval == 0) continue;
    for (int octave = 24; octave <= 48; octave += 12) {
      int pitch = octave + (chord.root + interval) % 12;
      int distance = std::abs(pitch - near) + rng.below(3);
      if (pitch >= 28 && pitch <= 50 && distance > 0 && distance < bestDistance) {
        best = pitch;
        bestDistance = distance;
      }
    }
  }
  return best;
}

void bassLine(Mix& mix, const Timeline& tl, const Song& song, const Clock& clock, Rng& rng) {
  Place place{0.0, 0.05, 1.0};
  double spb = clock.secondsPerBeat();
  auto play = [&](double beat, double beats, int pitch, double velocity) {
    double start = clock.at(beat) + rng.bipolar() * 0.004;
    upright(mix, {start, beats * spb * 0.95, static_cast<double>(pitch), velocity}, place, rng);
  };
  int previous = 36;
  for (double bar = 0; bar < tl.beats; bar += 4) {
    const Section& section = tl.sectionAt(bar);
    const Chord& first = chordAt(tl.chart, bar);
    const Chord& second = chordAt(tl.chart, bar + 2);
    const Chord& next = chordAt(tl.chart, bar + 4);
    int r1 = bassRoot(first.root), r2 = bassRoot(second.root), rn = bassRoot(next.root);
    bool lastBar = bar + 4 >= tl.beats;
    if (section.ending) {
      if (first.beat >= bar) play(bar, std::min(first.beats, tl.beats - bar) + 2, r1, 0.8);
      if (&second != &first) play(bar + 2, std::min(second.beats, tl.beats - bar - 2) + 2, r2, 0.8);
      continue;
    }
    switch (song.groove) {
      case Groove::Bossa: {
        int approach = rng.chance(0.5) ? rn + (rng.chance(0.5) ? 1 : -1) : fifthOf(r2);
        play(bar, 1.45, r1, 0.85);
        play(bar + 1.5, 0.45, &second == &first ? fifthOf(r1) : r1, 0.6);
        play(bar + 2, 1.45, &second == &first ? fifthOf(r1) : r2, 0.8);
        play(bar + 3.5, 0.45, lastBar ? r2 : approach, 0.6);
        break;
      }
      case Groove::Swing: {
        if (section.intensity < 0.6) {
          play(bar, 1.9, r1, 0.85);
          play(bar + 2, 1.9, &second == &first ? fifthOf(r1) : r2, 0.75);
          break;
        }
        // Walking: root, a chord tone, root or chord tone, then a step into the next bar.
        int n0 = r1;
        if (std::abs(n0 + 12 - previous) < std::abs(n0 - previous) && n0 + 12 <= 45) n0 += 12;
        int n1 = nearestTone(first, n0, rng);
        int n2 = &second == &first ? nearestTone(first, n1, rng) : r2;
        if (&second != &first && std::abs(n2 + 12 - n1) < std::abs(n2 - n1) && n2 + 12 <= 45)
          n2 += 12;
        int target = rn;
        if (std::abs(target + 12 - n2) < std::abs(target - n2) && target + 12 <= 45) target += 12;
        int n3 = rng.chance(0.6) ? target + (n2 > target ? 1 : -1) : fifthOf(target);
        if (n3 > 50) n3 -= 12;
        play(bar, 0.95, n0, 0.85);
        play(bar + 1, 0.95, n1, 0.7);
        play(bar + 2, 0.95, n2, 0.8);
        play(bar + 3, 0.95, n3, 0.7);
        previous = n3;
        break;
      }
      case Groove::Samba: {
        // Tumbao: the "and" of two and an anticipated root on four.
        if (bar == 0 || tl.sectionAt(bar - 4).ending) play(bar, 1.4, r1, 0.8);
        play(bar + 1.5, 1.4, &second == &first ? fifthOf(r1) : r2, 0.75);
        play(bar + 3, lastBar ? 1.0 : 1.9, lastBar ? r2 : rn, 0.85);
        break;
      }
    }
  }
}

// ---------------------------------------------------------------- comping

void strum(Mix& mix, const std::vector<int>& pitches, double start, double seconds, double velocity,
           bool guitar, Rng& rng) {
  Place guitarPlace{-0.3, 0.18, 1.25}, pianoPlace{0.25, 0.2, 0.75};
  for (std::size_t i = 0; i < pitches.size(); ++i) {
    double v = velocity * (0.85 + 0.15 * rng.uniform());
    Note n{start + (guitar ? 0.011 * static_cast<double>(i) : 0.003 * rng.uniform()), seconds,
           static_cast<double>(pitches[i]), v};
    if (guitar)
      nylonGuitar(mix, n, guitarPlace, rng);
    else
      ePiano(mix, n, pianoPlace);
  }
}

void padChords(Mix& mix, const Timeline& tl, const Clock& clock) {
  Place place{0.0, 0.45, 0.8};
  for (const Chord& chord : tl.chart) {
    if (!tl.sectionAt(chord.beat).pad) continue;
    double start = clock.at(chord.beat), end = clock.at(chord.beat + chord.beats);
    for (int pitch : voiceChord(chord, 66, 3))
      pad(mix, {start, end - start, static_cast<double>(pitch), 0.5}, place);
  }
}

void comping(Mix& mix, const Timeline& tl, const Song& song, const Clock& clock, Rng& rng) {
  double spb = clock.secondsPerBeat();
  bool guitar = song.guitar;
  int centre = guitar ? 59 : 63;
  // Hits in beats within a bar, and how long each rings.
  auto hit = [&](double beat, double beats, double velocity) {
    if (beat >= tl.beats) return;
    const Chord& chord = chordAt(tl.chart, beat + 0.01);
    double start = clock.at(beat) + rng.bipolar() * 0.005;
    strum(mix, voiceChord(chord, centre, 4), start, beats * spb, velocity, guitar, rng);
  };
  for (double bar = 0; bar < tl.beats; bar += 4) {
    const Section& section = tl.sectionAt(bar);
    int barIndex = static_cast<int>((bar - tl.spanAt(bar).begin) / 4.0);
    if (section.ending) {
      for (const Chord& chord : tl.chart)
        if (chord.beat >= bar && chord.beat < bar + 4) {
          double ring = chord.beat + chord.beats >= tl.beats ? chord.beats + 3 : chord.beats;
          hit(chord.beat, ring, 0.7);
          if (song.epiano && guitar) {
            double start = clock.at(chord.beat);
            strum(mix, voiceChord(chord, 65, 4), start, ring * spb, 0.4, false, rng);
          }
        }
      continue;
    }
    switch (song.groove) {
      case Groove::Bossa: {
        if (barIndex % 2 == 0) {
          hit(bar, 1.3, 0.7);
          hit(bar + 1.5, 1.3, 0.6);
          hit(bar + 3, 1.3, 0.62);
        } else {
          hit(bar + 1, 1.3, 0.6);
          hit(bar + 2.5, 1.3, 0.62);
        }
        // Soft electric piano holding each chord underneath.
        if (song.epiano && guitar)
          for (const Chord& chord : tl.chart)
            if (chord.beat >= bar && chord.beat < bar + 4)
              strum(mix, voiceChord(chord, 65, 4), clock.at(chord.beat), chord.beats * spb * 0.95,
                    0.32, false, rng);
        break;
      }
      case Groove::Swing: {
        // Charleston and its cousins, picked bar by bar.
        static const std::vector<std::vector<std::pair<double, double>>> kCells = {
            {{0, 1.2}, {1.5, 0.6}},
            {{1.5, 0.6}, {3, 0.8}},
            {{0, 0.8}, {2.5, 1.2}},
            {{1, 0.8}, {2.5, 0.6}, {3.5, 0.4}},
            {{0, 2.5}, {3.5, 0.4}}};
        for (auto [beat, beats] : kCells[rng.below(static_cast<int>(kCells.size()))])
          hit(bar + beat, beats, 0.55 + 0.1 * rng.uniform());
        break;
      }
      case Groove::Samba: {
        // Offbeat stabs, two-bar pattern.
        if (barIndex % 2 == 0) {
          hit(bar + 0.5, 0.4, 0.6);
          hit(bar + 1.5, 0.4, 0.55);
          hit(bar + 3, 0.8, 0.6);
        } else {
          hit(bar + 0.5, 0.4, 0.55);
          hit(bar + 2, 0.4, 0.6);
          hit(bar + 3.5, 0.4, 0.55);
        }
        break;
      }
    }
  }
}

// ---------------------------------------------------------------- percussion

void drums(Mix& mix, const Timeline& tl, const Song& song, const Clock& clock, Rng& rng) {
  Place kickPlace{0.0, 0.05, 1.0}, rimPlace{0.3, 0.15, 1.0}, shakerPlace{-0.45, 0.15, 1.0};
  Place hatPlace{0.35, 0.1, 1.0}, ridePlace{0.4, 0.2, 1.0}, congaPlace{-0.3, 0.15, 1.0};
  Place brushPlace{0.1, 0.15, 1.0}, clavePlace{0.5, 0.2, 1.0}, cymbalPlace{-0.2, 0.3, 1.0};
  auto at = [&](double beat) { return clock.at(beat) + rng.bipolar() * 0.004; };
  for (double bar = 0; bar < tl.beats; bar += 4) {
    const Span& span = tl.spanAt(bar);
    const Section& section = *span.section;
    double level = section.intensity;
    int barIndex = static_cast<int>((bar - span.begin) / 4.0);
    if (section.ending) {
      if (bar == span.begin && level > 0) {
        kick(mix, at(bar), 0.6 * level, kickPlace);
        cymbal(mix, at(bar), 3.0, 0.5 * level, false, cymbalPlace, rng);
      }
      continue;
    }
    if (level <= 0) continue;
    // A soft cymbal swell into a new section.
    bool sectionEnd = bar + 4 >= span.end && bar + 4 < tl.beats;
    if (sectionEnd && level >= 0.5 && rng.chance(0.6))
      cymbal(mix, clock.at(bar + 2), clock.at(bar + 4) - clock.at(bar + 2), 0.35, true, cymbalPlace,
             rng);
    switch (song.groove) {
      case Groove::Bossa: {
        static const std::vector<double> kClaveA = {0, 1.5, 3}, kClaveB = {1, 2.5};
        for (double b : barIndex % 2 == 0 ? kClaveA : kClaveB)
          rimClick(mix, at(bar + b), 0.55 * level, rimPlace, rng);
        for (int e = 0; e < 8; ++e) {
          double v = (e % 2 ? 0.75 : 0.45) * (0.85 + 0.15 * rng.uniform());
          if (level < 0.4)
            brushTap(mix, at(bar + e * 0.5), 0.35 * v, brushPlace, rng);
          else
            shaker(mix, at(bar + e * 0.5), v * level, shakerPlace, rng);
        }
        if (level >= 0.4) {
          kick(mix, at(bar), 0.55 * level, kickPlace);
          kick(mix, at(bar + 1.5), 0.3 * level, kickPlace);
          kick(mix, at(bar + 2), 0.5 * level, kickPlace);
          kick(mix, at(bar + 3.5), 0.3 * level, kickPlace);
        }
        if (level >= 0.8)
          for (double b : {0.5, 1.5, 2.5, 3.5}) hiHat(mix, at(bar + b), 0.4, false, hatPlace, rng);
        break;
      }
      case Groove::Swing: {
        if (level < 0.6) {
          brushSweep(mix, clock.at(bar), 4 * clock.secondsPerBeat(), 1.0, brushPlace, rng);
          brushTap(mix, at(bar + 1), 0.5, brushPlace, rng);
          brushTap(mix, at(bar + 3), 0.5, brushPlace, rng);
        } else {
          static const std::vector<std::pair<double, double>> kRide = {
              {0, 0.7}, {1, 0.85}, {1.5, 0.5}, {2, 0.7}, {3, 0.85}, {3.5, 0.5}};
          for (auto [b, v] : kRide) ride(mix, at(bar + b), v * level, ridePlace, rng);
          brushSweep(mix, clock.at(bar), 4 * clock.secondsPerBeat(), 0.6, brushPlace, rng);
          for (int e = 0; e < 8; ++e)
            if (rng.chance(0.18)) brushTap(mix, at(bar + e * 0.5), 0.3, brushPlace, rng);
        }
        hiHat(mix, at(bar + 1), 0.5, false, hatPlace, rng);
        hiHat(mix, at(bar + 3), 0.5, false, hatPlace, rng);
        for (int b = 0; b < 4; ++b) kick(mix, at(bar + b), 0.15 * level, kickPlace);
        break;
      }
      case Groove::Samba: {
        for (int s = 0; s < 16; ++s) {
          double v = (s % 4 == 3 ? 0.8 : s % 2 ? 0.45 : 0.55) * (0.85 + 0.15 * rng.uniform());
          shaker(mix, at(bar + s * 0.25), v * level, shakerPlace, rng);
        }
        // Son clave, three-two.
        static const std::vector<double> kThree = {0, 1.5, 3}, kTwo = {1, 2};
        for (double b : barIndex % 2 == 0 ? kThree : kTwo)
          woodBlock(mix, at(bar + b), 0.5 * level, 2400.0, clavePlace, rng);
        // Conga tumbao: slap on two, open tones on four and its "and".
        conga(mix, at(bar + 1), 0.6 * level, 330.0, true, congaPlace, rng);
        conga(mix, at(bar + 3), 0.7 * level, 300.0, false, congaPlace, rng);
        conga(mix, at(bar + 3.5), 0.7 * level, 300.0, false, congaPlace, rng);
        conga(mix, at(bar + 2.5), 0.35 * level, 220.0, false, congaPlace, rng);
        kick(mix, at(bar), 0.55 * level, kickPlace);
        kick(mix, at(bar + 2), 0.45 * level, kickPlace);
        break;
      }
    }
  }
}

// ---------------------------------------------------------------- improvising

// Notes that sound well over a chord: its tones plus the usual tensions.
std::vector<int> scaleOf(const Chord& chord) {
  const std::vector<int>& iv = chord.intervals;
  auto has = [&](int i) { return std::find(iv.begin(), iv.end(), i) != iv.end(); };
  std::vector<int> pcs;
  for (int i : iv) pcs.push_back(i % 12);
  if (!has(13) && !has(15) && !has(6)) pcs.push_back(2);
  if (has(3)) pcs.push_back(5);
  if (has(4) && !has(13) && !has(15)) pcs.push_back(9);
  if (has(6)) pcs.push_back(8);
  for (int& pc : pcs) pc = (pc + chord.root) % 12;
  std::sort(pcs.begin(), pcs.end());
  pcs.erase(std::unique(pcs.begin(), pcs.end()), pcs.end());
  return pcs;
}

bool isChordTone(const Chord& chord, int pitch) {
  for (int i : chord.intervals)
    if ((chord.root + i) % 12 == ((pitch % 12) + 12) % 12 && i < 12) return true;
  return false;
}

std::vector<ScoreNote> improvise(const Timeline& tl, const Span& span, Rng& rng) {
  // Rhythm cells of one bar: onsets in beats.
  static const std::vector<std::vector<double>> kCells = {{0, 0.5, 1, 1.5, 2, 3},
                                                          {0.5, 1, 1.5, 2.5, 3},
                                                          {0, 1, 1.5, 2.5},
                                                          {0, 0.5, 1.5, 2, 2.5, 3.5},
                                                          {0, 1.5, 2, 3},
                                                          {0.5, 1.5, 2, 2.5, 3, 3.5},
                                                          {0, 2}};
  std::vector<ScoreNote> notes;
  int pitch = 72;
  for (double bar = span.begin; bar < span.end; bar += 4) {
    int barIndex = static_cast<int>((bar - span.begin) / 4.0);
    bool phraseEnd = barIndex % 2 == 1;
    std::vector<double> cell = kCells[rng.below(static_cast<int>(kCells.size()))];
    if (phraseEnd) {  // answer and breathe: a shorter bar ending on a long note
      cell = rng.chance(0.5) ? std::vector<double>{0, 0.5, 1, 2} : std::vector<double>{0.5, 1, 2};
    }
    for (std::size_t k = 0; k < cell.size(); ++k) {
      double beat = bar + cell[k];
      double next = k + 1 < cell.size() ? bar + cell[k + 1] : bar + (phraseEnd ? 3.5 : 4.0);
      const Chord& chord = chordAt(tl.chart, beat + 0.01);
      std::vector<int> scale = scaleOf(chord);
      // Candidates: scale notes a step or two away, drawn towards the middle of the range.
      std::vector<int> options;
      for (int p = pitch - 5; p <= pitch + 5; ++p)
        if (p != pitch && p >= 64 && p <= 84 &&
            std::find(scale.begin(), scale.end(), p % 12) != scale.end())
          options.push_back(p);
      bool strong = std::fmod(cell[k], 1.0) == 0.0;
      if (strong || k + 1 == cell.size()) {
        std::vector<int> tones;
        for (int p : options)
          if (isChordTone(chord, p)) tones.push_back(p);
        if (!tones.empty()) options = tones;
      }
      if (options.empty()) options.push_back(pitch);
      std::sort(options.begin(), options.end(),
                [&](int a, int b) { return std::abs(a - 74) < std::abs(b - 74); });
      int choice = options[rng.below(std::min<int>(static_cast<int>(options.size()), 3))];
      if (rng.chance(0.35)) choice = options[rng.below(static_cast<int>(options.size()))];
      pitch = choice;
      double velocity = (std::fmod(cell[k], 1.0) != 0 ? 0.75 : 0.65) + 0.1 * rng.uniform();
      notes.push_back({beat, next - beat, pitch, velocity});
    }
  }
  return notes;
}

}  // namespace

void perform(Mix& mix, const std::vector<ScoreNote>& notes, const Clock& clock, Lead lead,
             const Place& place, Rng& rng, double legato, double jitterSeconds) {
  Place scaled = place;
  scaled.gain *= leadGain(lead);
  for (const ScoreNote& n : notes) {
    double start = clock.at(n.beat), end = clock.at(n.beat + n.beats);
    double jitter = jitterSeconds > 0 ? rng.bipolar() * jitterSeconds : 0.0;
    Note note{start + jitter, (end - start) * legato, static_cast<double>(n.pitch), n.velocity};
    playNote(mix, note, lead, scaled, rng);
  }
}

double songTempo(const Song& song) {
  Timeline tl = layOut(song);
  return tl.beats * 60.0 / (song.seconds - song.tailSeconds - song.leadInSeconds);
}

Buffer renderSong(const Song& song, unsigned parts) {
  Timeline tl = layOut(song);
  Clock clock{songTempo(song), song.groove == Groove::Swing ? 0.64 : 0.5, song.leadInSeconds};
  Mix mix(song.seconds);
  // Each part draws from its own sequence, so the parts do not change one another.
  Rng bassRng(song.seed * 101 + 1), compRng(song.seed * 101 + 2), drumRng(song.seed * 101 + 3),
      leadRng(song.seed * 101 + 4);
  if (parts & kBassPart) bassLine(mix, tl, song, clock, bassRng);
  if (parts & kCompPart) {
    comping(mix, tl, song, clock, compRng);
    padChords(mix, tl, clock);
  }
  if (parts & kDrumPart) drums(mix, tl, song, clock, drumRng);
  if (parts & kMelodyPart) {
    Place leadPlace{0.05, 0.28, 0.8}, counterPlace{-0.35, 0.3, 0.55};
    for (const Line& line : tl.lines)
      perform(mix, line.notes, clock, line.lead, line.counter ? counterPlace : leadPlace, leadRng,
              0.92, 0.006);
    for (const Span& span : tl.spans)
      if (span.section->solo != Lead::None)
        perform(mix, improvise(tl, span, leadRng), clock, span.section->solo, leadPlace, leadRng,
                0.9, 0.006);
  }
  Buffer out = mix.finish(song.reverbRoom, 0.5, 0.9);
  fadeOut(out, 2.0);
  trim(out, song.seconds);
  return out;
}

}  // namespace soundgen
