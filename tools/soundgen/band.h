// The lounge band: turns a song written as sections (chord chart, melody, lead instrument)
// into a full arrangement with bass, comping, percussion and reverb.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "instruments.h"
#include "score.h"

namespace soundgen {

enum class Groove { Bossa, Swing, Samba };
enum class Lead { None, Vibes, Flute, MutedTrumpet, Marimba, Clarinet, EPiano, Celesta, Guitar };

// Plays a written melody on one instrument. legato scales each written length.
void perform(Mix& mix, const std::vector<ScoreNote>& notes, const Clock& clock, Lead lead,
             const Place& place, Rng& rng, double legato = 0.92, double jitterSeconds = 0.0);

struct Section {
  std::string chords{};  // chord chart, 4 beats to the bar
  std::string melody{};  // written tune, may be empty
  Lead lead = Lead::None;
  std::string counter{};  // a second line (answers, harmony), may be empty
  Lead counterLead = Lead::None;
  Lead solo = Lead::None;  // improvises over the chart when set
  int transpose = 0;       // semitones, for key changes
  double intensity = 0.7;  // 0 no drums .. 1 full band
  bool pad = false;        // soft strings under the chords
  bool ending = false;     // held chords, the band stops
};

struct Song {
  Groove groove = Groove::Bossa;
  double seconds = 60;     // exact length of the file
  double tailSeconds = 3;  // after the last beat, for the final chord to ring out
  double leadInSeconds = 0.15;
  bool guitar = true;   // nylon guitar comping (else electric piano)
  bool epiano = false;  // electric piano comping as well / instead
  double reverbRoom = 0.75;
  std::uint64_t seed = 1;
  std::vector<Section> sections;
};

// Which parts to render; all by default. Used to check the balance of the mix.
enum Part : unsigned {
  kBassPart = 1,
  kCompPart = 2,
  kDrumPart = 4,
  kMelodyPart = 8,
  kAllParts = 15
};

// The tempo follows from the song's length: all written beats fit before the tail.
double songTempo(const Song& song);
Buffer renderSong(const Song& song, unsigned parts = kAllParts);

}  // namespace soundgen
