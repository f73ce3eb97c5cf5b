// Writing music down: a compact text notation for melodies and chord charts, chord voicing,
// and the clock that turns beats into seconds (with swing when asked).
//
// Melody text: tokens separated by spaces, each "PITCH[:BEATS][!|?][']".
//   PITCH  a note name with octave ("C5", "F#4", "Bb3"), several joined by '+' for a chord
//          ("C4+E4+G4"), or "r" for a rest.
//   BEATS  a length in beats ("1", ".5", "1.5"); left out, the previous length is used.
//   !      accent, ?  ghost note, '  staccato (half the written length).
// Chord text: "SYMBOL:BEATS" tokens, e.g. "Am9:4 D7b9:2 Gmaj7:2".
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace soundgen {

struct ScoreNote {
  double beat = 0;
  double beats = 1;  // sounding length
  int pitch = 60;
  double velocity = 0.8;
};

struct Chord {
  double beat = 0;
  double beats = 4;
  int root = 0;                // pitch class, C = 0
  std::vector<int> intervals;  // from the root, the root itself included
};

// Returns the MIDI number of a note name ("C4" is 60); throws on anything else.
int parsePitch(std::string_view name);
// Melody in beats from startBeat; also reports the written length through totalBeats.
std::vector<ScoreNote> parseMelody(std::string_view text, double startBeat = 0,
                                   double* totalBeats = nullptr);
std::vector<Chord> parseChords(std::string_view text, double startBeat = 0);
// Intervals of a chord symbol's quality ("maj7", "m9", "7b9", ...); throws if unknown.
std::vector<int> chordIntervals(std::string_view quality);

// Closest-position voicing: count chord tones (root left out when the chord has enough
// colour without it) placed as near to the centre pitch as the inversion allows.
std::vector<int> voiceChord(const Chord& chord, int centre, int count);
// The chord sounding at a beat (the last one if past the end).
const Chord& chordAt(const std::vector<Chord>& chart, double beat);

// Beats to seconds. swing is the share of a beat taken by its first eighth: 0.5 is straight,
// about 0.64 a relaxed jazz swing.
struct Clock {
  double bpm = 120;
  double swing = 0.5;
  double offset = 0;  // seconds before beat 0
  double secondsPerBeat() const { return 60.0 / bpm; }
  double at(double beat) const;
};

// Transposes every note of a melody.
std::vector<ScoreNote> transposed(std::vector<ScoreNote> notes, int semitones);

}  // namespace soundgen
