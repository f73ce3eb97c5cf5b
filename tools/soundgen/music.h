// The written songs behind the background tracks, open to the balance check of main.cpp.
#pragma once

#include "band.h"
#include "sounds.h"

namespace soundgen {

Song loungeSong(int which, double seconds);  // 1 bossa in F, 2 swing in Bb, 3 samba in E minor
Song creditsSong(double seconds);            // a long bossa in D, up a tone near the end

}  // namespace soundgen
