#include "score.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <sstream>
#include <stdexcept>

namespace soundgen {

namespace {

std::vector<std::string> tokens(std::string_view text) {
  std::istringstream in{std::string(text)};
  std::vector<std::string> out;
  for (std::string token; in >> token;) out.push_back(token);
  return out;
}

// Letter and accidentals at the front of a name; returns the pitch class and how many
// characters it used.
std::pair<int, std::size_t> pitchClass(std::string_view name) {
  static const std::map<char, int> kLetters = {{'C', 0}, {'D', 2}, {'E', 4}, {'F', 5},
                                               {'G', 7}, {'A', 9}, {'B', 11}};
  if (name.empty() || !kLetters.count(name[0]))
    throw std::invalid_argument("not a note: " + std::string(name));
  int pc = kLetters.at(name[0]);
  std::size_t used = 1;
  while (used < name.size() && (name[used] == '#' || name[used] == 'b')) {
    pc += name[used] == '#' ? 1 : -1;
    ++used;
  }
  return {((pc % 12) + 12) % 12, used};
}

double parseNumber(const std::string& text) {
  std::size_t used = 0;
  double value = std::stod(text, &used);
  if (used != text.size() || value <= 0) throw std::invalid_argument("bad length: " + text);
  return value;
}

}  // namespace

int parsePitch(std::string_view name) {
  std::size_t used = pitchClass(name).second;
  std::string_view octaveText = name.substr(used);
  if (octaveText.empty() || octaveText.find_first_not_of("-0123456789") != std::string_view::npos)
    throw std::invalid_argument("no octave: " + std::string(name));
  // The accidentals move the pitch, not the octave: Cb4 is B3, B#3 is C4.
  int letterPc = pitchClass(name.substr(0, 1)).first;
  int shift = 0;
  for (std::size_t i = 1; i < used; ++i) shift += name[i] == '#' ? 1 : -1;
  return 12 * (std::stoi(std::string(octaveText)) + 1) + letterPc + shift;
}

std::vector<ScoreNote> parseMelody(std::string_view text, double startBeat, double* totalBeats) {
  std::vector<ScoreNote> notes;
  double beat = startBeat, length = 1.0;
  for (std::string token : tokens(text)) {
    double velocity = 0.8;
    bool staccato = false;
    while (!token.empty() && std::string_view("!?'").find(token.back()) != std::string::npos) {
      if (token.back() == '!') velocity = 1.0;
      if (token.back() == '?') velocity = 0.5;
      if (token.back() == '\'') staccato = true;
      token.pop_back();
    }
    std::size_t colon = token.find(':');
    std::string head = token.substr(0, colon);
    if (colon != std::string::npos) length = parseNumber(token.substr(colon + 1));
    if (head != "r") {
      std::size_t from = 0;
      while (from <= head.size()) {
        std::size_t plus = head.find('+', from);
        std::string part =
            head.substr(from, plus == std::string::npos ? std::string::npos : plus - from);
        notes.push_back({beat, staccato ? length * 0.5 : length, parsePitch(part), velocity});
        if (plus == std::string::npos) break;
        from = plus + 1;
      }
    }
    beat += length;
  }
  if (totalBeats) *totalBeats = beat - startBeat;
  return notes;
}

std::vector<int> chordIntervals(std::string_view quality) {
  static const std::map<std::string, std::vector<int>, std::less<>> kQualities = {
      {"", {0, 4, 7}},
      {"m", {0, 3, 7}},
      {"6", {0, 4, 7, 9}},
      {"m6", {0, 3, 7, 9}},
      {"69", {0, 4, 7, 9, 14}},
      {"maj7", {0, 4, 7, 11}},
      {"maj9", {0, 4, 7, 11, 14}},
      {"m7", {0, 3, 7, 10}},
      {"m9", {0, 3, 7, 10, 14}},
      {"m11", {0, 3, 7, 10, 14, 17}},
      {"7", {0, 4, 7, 10}},
      {"9", {0, 4, 7, 10, 14}},
      {"13", {0, 4, 10, 14, 21}},
      {"7b9", {0, 4, 7, 10, 13}},
      {"7#9", {0, 4, 7, 10, 15}},
      {"7sus", {0, 5, 7, 10}},
      {"9sus", {0, 5, 7, 10, 14}},
      {"m7b5", {0, 3, 6, 10}},
      {"dim7", {0, 3, 6, 9}},
  };
  auto found = kQualities.find(quality);
  if (found == kQualities.end())
    throw std::invalid_argument("unknown chord quality: " + std::string(quality));
  return found->second;
}

std::vector<Chord> parseChords(std::string_view text, double startBeat) {
  std::vector<Chord> chart;
  double beat = startBeat;
  for (const std::string& token : tokens(text)) {
    std::size_t colon = token.find(':');
    if (colon == std::string::npos) throw std::invalid_argument("chord without length: " + token);
    std::string symbol = token.substr(0, colon);
    auto [root, used] = pitchClass(symbol);
    Chord chord{beat, parseNumber(token.substr(colon + 1)), root,
                chordIntervals(std::string_view(symbol).substr(used))};
    beat += chord.beats;
    chart.push_back(chord);
  }
  return chart;
}

std::vector<int> voiceChord(const Chord& chord, int centre, int count) {
  std::vector<int> tones = chord.intervals;
  auto drop = [&](int interval) {
    auto it = std::find(tones.begin(), tones.end(), interval);
    if (static_cast<int>(tones.size()) > count && it != tones.end()) tones.erase(it);
  };
  drop(0);  // the bass has the root
  drop(7);  // a plain fifth adds the least
  while (static_cast<int>(tones.size()) > count) tones.pop_back();
  std::vector<int> pitches;
  int low = centre - 6;
  for (int interval : tones) {
    int pc = (chord.root + interval) % 12;
    pitches.push_back(low + ((pc - low) % 12 + 12) % 12);
  }
  std::sort(pitches.begin(), pitches.end());
  pitches.erase(std::unique(pitches.begin(), pitches.end()), pitches.end());
  for (std::size_t i = 0; static_cast<int>(pitches.size()) < count; ++i)
    pitches.push_back(pitches[i] + 12);
  std::sort(pitches.begin(), pitches.end());
  return pitches;
}

const Chord& chordAt(const std::vector<Chord>& chart, double beat) {
  if (chart.empty()) throw std::invalid_argument("empty chord chart");
  for (const Chord& chord : chart)
    if (beat < chord.beat + chord.beats - 1e-9) return chord;
  return chart.back();
}

double Clock::at(double beat) const {
  double whole = std::floor(beat), fraction = beat - whole;
  double warped =
      fraction < 0.5 ? fraction / 0.5 * swing : swing + (fraction - 0.5) / 0.5 * (1.0 - swing);
  return offset + (whole + warped) * secondsPerBeat();
}

std::vector<ScoreNote> transposed(std::vector<ScoreNote> notes, int semitones) {
  for (ScoreNote& n : notes) n.pitch += semitones;
  return notes;
}

}  // namespace soundgen
