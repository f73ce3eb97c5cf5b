// The band: pitched instruments that play one note each call, and the percussion kit. All of
// them add straight into a Mix at the note's place in time.
#pragma once

#include "synth.h"

namespace soundgen {

// One note in seconds. Pitch is a MIDI number; bend glides that many semitones over the gate.
struct Note {
  double start = 0;
  double length = 0.5;
  double pitch = 60;
  double velocity = 0.8;
  double bend = 0;
  double vibrato = 0;  // depth in semitones
};

// Where an instrument sits in the mix.
struct Place {
  double pan = 0;
  double send = 0.15;
  double gain = 1.0;
};

// Pitched instruments.
void ePiano(Mix& mix, const Note& note, const Place& place);  // FM tine piano, slow autopan
void nylonGuitar(Mix& mix, const Note& note, const Place& place, Rng& rng);  // plucked string
void upright(Mix& mix, const Note& note, const Place& place, Rng& rng);      // plucked bass
void vibes(Mix& mix, const Note& note, const Place& place);    // vibraphone with motor tremolo
void marimba(Mix& mix, const Note& note, const Place& place);  // wooden bar, short
void celesta(Mix& mix, const Note& note, const Place& place);  // small bell, for sparkles
void flute(Mix& mix, const Note& note, const Place& place, Rng& rng);
void trumpet(Mix& mix, const Note& note, const Place& place, bool muted);
void trombone(Mix& mix, const Note& note, const Place& place);  // dark, with a plunger wah
void clarinet(Mix& mix, const Note& note, const Place& place);
void pad(Mix& mix, const Note& note, const Place& place);  // soft strings
void pizzicato(Mix& mix, const Note& note, const Place& place, Rng& rng);

// Percussion: a hit at time t (seconds) with a velocity 0..1.
void kick(Mix& mix, double t, double velocity, const Place& place);
void rimClick(Mix& mix, double t, double velocity, const Place& place, Rng& rng);
void shaker(Mix& mix, double t, double velocity, const Place& place, Rng& rng);
void brushTap(Mix& mix, double t, double velocity, const Place& place, Rng& rng);
void brushSweep(Mix& mix, double t, double seconds, double velocity, const Place& place, Rng& rng);
void ride(Mix& mix, double t, double velocity, const Place& place, Rng& rng);
void hiHat(Mix& mix, double t, double velocity, bool open, const Place& place, Rng& rng);
void conga(Mix& mix, double t, double velocity, double hz, bool slap, const Place& place, Rng& rng);
void woodBlock(Mix& mix, double t, double velocity, double hz, const Place& place, Rng& rng);
void cymbal(Mix& mix, double t, double seconds, double velocity, bool swell, const Place& place,
            Rng& rng);
void timpani(Mix& mix, double t, double velocity, double pitch, const Place& place, Rng& rng);
void triangle(Mix& mix, double t, double velocity, const Place& place);

}  // namespace soundgen
