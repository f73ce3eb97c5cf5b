// The background music: three lounge pieces for the table and a longer one for the credits.
// Each is written as sections; the band (band.cpp) does the accompaniment.
#include "music.h"

#include <stdexcept>

namespace soundgen {

namespace {

// ---------------------------------------------------------------- 1: a bossa in F

const char* kBossaIntro = "Fmaj9:4 G9:4 Gm9:4 C13:4";
const char* kBossaA = "Fmaj9:4 Fmaj9:4 G9:4 G9:4 Gm9:4 C13:4 Am7:2 D7b9:2 Gm7:2 C7:2";
const char* kBossaA2 = "Fmaj9:4 Fmaj9:4 G9:4 G9:4 Gm9:4 C13:4 Fmaj9:4 Fmaj9:4";
const char* kBossaB = "Bbmaj7:4 Eb9:4 Am7:4 D7b9:4 Gm7:4 C7:4 Am7:2 D7:2 Gm7:2 C7:2";
const char* kBossaEnd = "Gm9:4 C13:4 Fmaj9:8";

const char* kBossaTuneOpening =
    "r:.5 E5:.5 G5:.5 E5:1 D5:.5 C5:1  A4:2.5 r:.5 C5:.5 D5:.5 "
    "E5:1.5 D5:.5 B4:1 A4:1  F5:2 E5:.5 D5:.5 r:1 "
    "r:.5 D5:.5 F5:.5 A5:1 G5:.5 F5:1  E5:1.5 D5:.5 Bb4:2 ";
const std::string kBossaTuneA =
    std::string(kBossaTuneOpening) + "C5:1 E5:1 Eb5:1 C5:1  Bb4:1 D5:.5 F5:.5 E5:2";
const std::string kBossaTuneA2 = std::string(kBossaTuneOpening) + "F5:1 E5:.5 C5:.5 A4:2  r:4";
const char* kBossaTuneB =
    "D5:1.5 F5:.5 A5:2  G5:1.5 F5:.5 Db5:2  C5:1.5 E5:.5 G5:2  F#5:1 Eb5:1 C5:2 "
    "Bb4:1 D5:1 F5:1.5 A5:.5  G5:2 E5:1 r:1  E5:1 C5:1 F#5:1 D5:1  F5:1 D5:1 E5:1 C5:1";
const char* kBossaTuneEnd = "r:.5 D5:.5 F5:.5 A5:1 G5:.5 F5:1  E5:1.5 D5:.5 Bb4:2  A4:8";

Song bossaInF(double seconds) {
  Song song;
  song.groove = Groove::Bossa;
  song.seconds = seconds;
  song.tailSeconds = 3.0;
  song.guitar = true;
  song.epiano = true;
  song.seed = 11;
  Section intro{kBossaIntro, "", Lead::None};
  intro.intensity = 0.35;
  Section a{kBossaA, kBossaTuneA, Lead::Vibes};
  Section a2{kBossaA2, kBossaTuneA2, Lead::Vibes};
  Section b{kBossaB, kBossaTuneB, Lead::Flute};
  b.intensity = 0.85;
  Section solo{kBossaA, "", Lead::None};
  solo.solo = Lead::Vibes;
  solo.intensity = 0.85;
  Section last{kBossaA2, kBossaTuneA2, Lead::Flute};
  last.intensity = 0.8;
  last.pad = true;
  Section end{kBossaEnd, kBossaTuneEnd, Lead::Vibes};
  end.ending = true;
  song.sections = {intro, a, a2, b, solo, last, end};
  return song;
}

// ---------------------------------------------------------------- 2: a swing ballad in Bb

const char* kSwingIntro = "Cm7:2 F7:2 Cm7:2 F7:2";
const char* kSwingA =
    "Bbmaj7:2 G7b9:2 Cm7:2 F7:2 Dm7:2 G7:2 Cm7:2 F7:2 Fm7:2 Bb7:2 Ebmaj7:2 Ab7:2 Dm7:2 G7:2 "
    "Cm7:2 F7:2";
const char* kSwingA2 =
    "Bbmaj7:2 G7b9:2 Cm7:2 F7:2 Dm7:2 G7:2 Cm7:2 F7:2 Fm7:2 Bb7:2 Ebmaj7:2 Ab7:2 Cm7:2 F7:2 "
    "Bb6:4";
const char* kSwingB = "D9:4 D9:4 G13:4 G13:4 C9:4 C9:4 Cm7:4 F7:4";
const char* kSwingEnd = "Cm7:4 F7:4 Bbmaj9:4";

const char* kSwingTuneOpening =
    "D5:1.5 C5:.5 B4:1 Ab4:1  G4:1 Bb4:.5 D5:.5 Eb5:1.5 C5:.5 "
    "F5:1.5 D5:.5 B4:1 D5:1  C5:2 A4:1.5 r:.5 "
    "Ab4:1 C5:.5 Eb5:.5 D5:1 Ab4:1  G4:1.5 Bb4:.5 C5:1 Gb4:1 ";
const std::string kSwingTuneA =
    std::string(kSwingTuneOpening) + "F4:1 A4:.5 C5:.5 B4:1 D5:1  Eb5:1 D5:.5 C5:.5 A4:2";
const std::string kSwingTuneA2 =
    std::string(kSwingTuneOpening) + "Eb5:1 D5:.5 C5:.5 A4:1 C5:1  Bb4:3 r:1";
const char* kSwingTuneB =
    "F#5:1.5 E5:.5 D5:1 C5:1  A4:3 r:1  B4:1.5 D5:.5 F5:1 E5:1  D5:3 r:1 "
    "E5:1.5 G5:.5 Bb5:1 A5:1  G5:3 r:1  G5:1 Eb5:1 C5:1 Bb4:1  A4:1 C5:1 Eb5:2";
const char* kSwingTuneEnd = "G5:2 F5:2  Eb5:1 D5:1 C5:1 A4:1  Bb4:4";

Song swingInBb(double seconds) {
  Song song;
  song.groove = Groove::Swing;
  song.seconds = seconds;
  song.tailSeconds = 3.5;
  song.guitar = false;
  song.epiano = true;
  song.reverbRoom = 0.8;
  song.seed = 22;
  Section intro{kSwingIntro, "", Lead::None};
  intro.intensity = 0.3;
  Section a{kSwingA, kSwingTuneA, Lead::Flute};
  a.intensity = 0.45;
  Section a2{kSwingA2, kSwingTuneA2, Lead::Flute};
  a2.intensity = 0.45;
  Section b{kSwingB, kSwingTuneB, Lead::MutedTrumpet};
  b.intensity = 0.75;
  Section a3{kSwingA2, kSwingTuneA2, Lead::Vibes};
  a3.intensity = 0.75;
  Section solo{kSwingA, "", Lead::None};
  solo.solo = Lead::Vibes;
  solo.intensity = 0.75;
  Section last{kSwingA2, kSwingTuneA2, Lead::MutedTrumpet};
  last.intensity = 0.7;
  last.pad = true;
  Section end{kSwingEnd, kSwingTuneEnd, Lead::Flute};
  end.ending = true;
  end.intensity = 0.5;
  song.sections = {intro, a, a2, b, a3, solo, last, end};
  return song;
}

// ---------------------------------------------------------------- 3: a samba in E minor

const char* kSambaVamp = "Em9:4 A13:4 Em9:4 A13:4";
const char* kSambaA = "Em9:4 A13:4 Em9:4 A13:4 Cmaj7:4 B7#9:4 Em9:4 F#m7b5:2 B7b9:2";
const char* kSambaB = "Am9:4 D9:4 Gmaj7:4 Cmaj7:4 F#m7b5:4 B7:4 Em9:4 Em9:4";
const char* kSambaEnd = "Em9:4 Em9:4";

const char* kSambaTuneA =
    "B4:.5 D5:.5 r:.5 E5:.5 F#5:1 D5:.5 B4:.5  C#5:1 r:.5 F#5:.5 E5:1 C#5:1 "
    "B4:.5 D5:.5 r:.5 G5:.5 F#5:1 E5:.5 D5:.5  E5:2 r:1 C#5:.5 D5:.5 "
    "E5:1 G5:.5 B5:.5 r:.5 A5:.5 G5:1  F#5:1 D5:1 D#5:1 A4:.5 B4:.5 "
    "G4:1 B4:.5 E5:1.5 F#5:1  E5:1 C5:1 D#5:1 B4:1";
const char* kSambaTuneB =
    "C5:.5 E5:.5 G5:.5 B5:1 A5:.5 G5:1  F#5:1 E5:.5 C5:1 r:.5 A4:1 "
    "B4:.5 D5:.5 F#5:.5 A5:1 G5:.5 F#5:1  E5:2 r:1 D5:.5 E5:.5 "
    "A5:1 C5:.5 E5:1 r:.5 C5:1  D#5:1.5 F#5:.5 A5:1 F#5:1 "
    "G5:1 F#5:.5 E5:.5 D5:1 B4:1  E5:2 r:2";
// Long guide tones under the B tune.
const char* kSambaCounterB = "B4:4 A4:4 B4:4 G4:4 A4:4 A4:4 G4:4 B4:4";
const char* kSambaTuneEnd = "B4:.5 D5:.5 E5:.5 G5:.5 F#5:.5 D5:.5 E5:1  r:4";

Song sambaInEm(double seconds) {
  Song song;
  song.groove = Groove::Samba;
  song.seconds = seconds;
  song.tailSeconds = 2.5;
  song.guitar = false;
  song.epiano = true;
  song.reverbRoom = 0.7;
  song.seed = 33;
  Section intro{kSambaVamp, "", Lead::None};
  intro.intensity = 0.5;
  Section a{kSambaA, kSambaTuneA, Lead::Marimba};
  a.intensity = 0.8;
  Section b{kSambaB, kSambaTuneB, Lead::Marimba, kSambaCounterB, Lead::Flute};
  b.intensity = 0.9;
  Section a2{kSambaA, kSambaTuneA, Lead::Vibes};
  a2.intensity = 0.9;
  a2.pad = true;
  Section end{kSambaEnd, kSambaTuneEnd, Lead::Marimba};
  end.ending = true;
  end.intensity = 0.7;
  song.sections = {intro, a, b, a2, end};
  return song;
}

// ---------------------------------------------------------------- credits: a long bossa in D

const char* kCreditsIntro = "Gmaj7:4 F#m7:4 Em9:4 A13:4";
const char* kCreditsC =
    "Dmaj9:4 Dmaj9:4 Em9:4 A13:4 F#m7:4 B7b9:4 Em9:4 A7sus:2 A7:2 "
    "Dmaj9:4 D9:4 Gmaj7:4 Gm6:4 F#m7:4 B7b9:4 Em9:2 A13:2 Dmaj9:4";
const char* kCreditsD = "Gmaj7:4 F#m7:4 Em7:4 A7:4 Bm7:4 E9:4 Em7:4 A7b9:4";
const char* kCreditsVamp = "Em9:4 A13:4 F#m7:4 B7b9:4 Em9:4 A13:4 Dmaj9:4 A7sus:4";
const char* kCreditsTurn = "Em9:4 A13:4 F#m7:4 B7sus:4";
const char* kCreditsEnd = "Em9:4 A13:4 Dmaj9:8";

const char* kCreditsTuneC =
    "F#5:1.5 E5:.5 C#5:1 A4:1  B4:2 r:1 A4:.5 B4:.5  D5:1.5 F#5:.5 G5:1 E5:1  C#5:2 F#5:1 E5:1 "
    "A5:1.5 G#5:.5 E5:1 C#5:1  D#5:2 C5:1 A4:1  G4:1 B4:.5 D5:.5 F#5:1 E5:1  D5:2 C#5:2 "
    "F#5:1.5 E5:.5 C#5:1 A4:1  C5:2 r:1 E5:.5 F#5:.5  G5:1.5 F#5:.5 D5:1 B4:1  Bb4:2 E5:1 D5:1 "
    "C#5:1.5 E5:.5 A5:1 G#5:1  F#5:1 D#5:1 C5:1 A4:1  G4:1 B4:1 C#5:1 E5:1  D5:3 r:1";
const char* kCreditsTuneD =
    "B5:1.5 A5:.5 F#5:1 D5:1  E5:1.5 C#5:.5 A4:2  G5:1.5 F#5:.5 D5:1 B4:1  C#5:2 E5:1 G5:1 "
    "F#5:1.5 E5:.5 D5:1 B4:1  G#4:1 B4:.5 D5:.5 F#5:2  G5:1 F#5:.5 E5:.5 D5:1 B4:1 "
    "Bb4:1 C#5:1 E5:1 G5:1";
const char* kCreditsCounterD = "D5:4 C#5:4 B4:4 A4:4 A4:4 G#4:4 G4:4 G4:4";
const char* kCreditsTuneEnd = "G4:1 B4:1 C#5:1 E5:1  F#5:2 E5:2  D5:8";

Song creditsInD(double seconds) {
  Song song;
  song.groove = Groove::Bossa;
  song.seconds = seconds;
  song.tailSeconds = 4.0;
  song.guitar = true;
  song.epiano = true;
  song.reverbRoom = 0.8;
  song.seed = 44;
  auto section = [](const char* chords, const char* tune, Lead lead, double intensity) {
    Section s{chords, tune, lead};
    s.intensity = intensity;
    return s;
  };
  Section intro = section(kCreditsIntro, "", Lead::None, 0.0);
  intro.pad = true;
  Section c1 = section(kCreditsC, kCreditsTuneC, Lead::Vibes, 0.5);
  Section d1 = section(kCreditsD, kCreditsTuneD, Lead::Flute, 0.7);
  Section c2 = section(kCreditsC, kCreditsTuneC, Lead::MutedTrumpet, 0.8);
  Section vamp1 = section(kCreditsVamp, "", Lead::None, 0.8);
  vamp1.solo = Lead::Vibes;
  Section d2 = section(kCreditsD, kCreditsTuneD, Lead::Vibes, 0.7);
  d2.counter = kCreditsCounterD;
  d2.counterLead = Lead::Flute;
  Section c3 = section(kCreditsC, kCreditsTuneC, Lead::Flute, 0.6);
  c3.pad = true;
  Section vamp2 = section(kCreditsVamp, "", Lead::None, 0.85);
  vamp2.solo = Lead::EPiano;
  Section turn = section(kCreditsTurn, "", Lead::None, 0.9);
  turn.pad = true;
  // Up a whole tone for the last round.
  Section c4 = section(kCreditsC, kCreditsTuneC, Lead::Marimba, 0.9);
  Section d3 = section(kCreditsD, kCreditsTuneD, Lead::MutedTrumpet, 0.8);
  d3.counter = kCreditsCounterD;
  d3.counterLead = Lead::Vibes;
  Section c5 = section(kCreditsC, kCreditsTuneC, Lead::Vibes, 0.6);
  c5.pad = true;
  Section end = section(kCreditsEnd, kCreditsTuneEnd, Lead::Flute, 0.5);
  end.ending = true;
  end.pad = true;
  for (Section* s : {&c4, &d3, &c5, &end}) s->transpose = 2;
  song.sections = {intro, c1, d1, c2, vamp1, d2, c3, vamp2, turn, c4, d3, c5, end};
  return song;
}

}  // namespace

Song loungeSong(int which, double seconds) {
  switch (which) {
    case 1:
      return bossaInF(seconds);
    case 2:
      return swingInBb(seconds);
    case 3:
      return sambaInEm(seconds);
    default:
      throw std::invalid_argument("no such track");
  }
}

Song creditsSong(double seconds) {
  return creditsInD(seconds);
}

Buffer trackLounge(int which, double seconds) {
  return renderSong(loungeSong(which, seconds));
}

Buffer trackCredits(double seconds) {
  return renderSong(creditsSong(seconds));
}

}  // namespace soundgen
