// pokerzeva-soundgen OUTDIR [NAME...]
//   Writes every sound of the game under OUTDIR (EFEITOS/, MELODIAS/, TRILHAS/), mastered to
//   its loudness. Files meant to be shipped compressed (.MP3, .WMA) are written as
//   NAME.MP3.wav / NAME.WMA.wav for generate.sh to encode. With names, only the files whose
//   path contains one of them are made.
// pokerzeva-soundgen --balance TRACK
//   Prints the loudness of each part of a track (1-3, 4 the credits) to check the mix.
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "music.h"
#include "sounds.h"

using namespace soundgen;

namespace {

struct Output {
  std::string path;  // as shipped, relative to MUSICAS/
  int channels;
  double lufs;
  std::function<Buffer()> make;
};

constexpr double kEffect = -15.0, kTune = -14.0, kMusic = -21.0;

std::vector<Output> catalogue() {
  std::vector<Output> list = {
      {"TRILHAS/CREDITOS.WMA", 2, kMusic, [] { return trackCredits(310.0); }},
      {"TRILHAS/INGAME2.WMA", 2, kMusic, [] { return trackLounge(2, 98.0); }},
      {"TRILHAS/INGAME1.MP3", 2, kMusic, [] { return trackLounge(1, 92.0); }},
      {"TRILHAS/INGAME3.MP3", 2, kMusic, [] { return trackLounge(3, 59.0); }},
      {"EFEITOS/FICHAS.WAV", 1, kEffect, chipRattle},
      {"EFEITOS/CARTAINI.WAV", 1, kEffect - 1, cardDealt},
      {"EFEITOS/CARTASHOW.WAV", 1, kEffect - 1, cardTurned},
      {"EFEITOS/CARTAMESA.WAV", 1, kEffect - 1, cardLanded},
      {"EFEITOS/CARTASEL.WAV", 1, kEffect - 1, cardMarked},
      {"MELODIAS/ABRE.WAV", 1, kTune, tuneOpens},
      {"MELODIAS/NOABRE.WAV", 1, kTune, tunePasses},
      {"MELODIAS/APOSTA.WAV", 1, kTune, tuneBets},
      {"MELODIAS/PASSOU.WAV", 1, kTune, tunePush},
      {"MELODIAS/WAIT.WAV", 1, kTune, tuneThinking},
      {"MELODIAS/GANHEI.WAV", 1, kTune, tuneWins},
      {"MELODIAS/PERDI.MP3", 1, kTune, tuneLoses},
      {"MELODIAS/EMBORA.MP3", 1, kTune, tuneGoodbye},
      {"MELODIAS/LALUZ.WAV", 1, kTune - 3, tuneLight},
  };
  for (int value : {1, 5, 10, 50})
    list.push_back({"EFEITOS/FICHAS_" + std::to_string(value) + ".WAV", 1, kEffect,
                    [value] { return chipClick(value); }});
  for (int which : {1, 2, 3})
    list.push_back({"MELODIAS/BARAJANDO" + std::to_string(which) + ".WAV", 1, kTune + 1,
                    [which] { return tuneShuffle(which); }});
  return list;
}

bool compressed(const std::string& path) {
  std::string ext = path.substr(path.size() - 4);
  return ext == ".MP3" || ext == ".WMA";
}

struct Result {
  double seconds = 0, peak = 0, lufs = 0, elapsed = 0;
  double limited = 0;  // dB the limiter had to take off the highest peak
  std::string error;
};

Result produce(const Output& out, const std::filesystem::path& root) {
  auto begin = std::chrono::steady_clock::now();
  Result r;
  try {
    Buffer buffer = out.make();
    double ceiling = compressed(out.path) ? -2.0 : -1.2;
    r.limited = std::max(0.0, peakDb(buffer, out.channels) + out.lufs -
                                  loudnessLufs(buffer, out.channels) - ceiling);
    // Compressed files keep more headroom: the encoder's filters can overshoot a little.
    master(buffer, out.channels, out.lufs, ceiling);
    std::filesystem::path file = root / (compressed(out.path) ? out.path + ".wav" : out.path);
    writeWav(file.string(), buffer, out.channels);
    r.seconds = static_cast<double>(buffer.frames()) / kSampleRate;
    r.peak = peakDb(buffer, out.channels);
    r.lufs = loudnessLufs(buffer, out.channels);
  } catch (const std::exception& e) {
    r.error = e.what();
  }
  r.elapsed = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
  return r;
}

int balance(int track) {
  Song song =
      track == 4 ? creditsSong(310.0) : loungeSong(track, std::vector{92.0, 98.0, 59.0}[track - 1]);
  std::printf("tempo %.1f bpm\n", songTempo(song));
  const std::pair<const char*, unsigned> parts[] = {{"bass", kBassPart},
                                                    {"comping", kCompPart},
                                                    {"drums", kDrumPart},
                                                    {"melody", kMelodyPart},
                                                    {"all", kAllParts}};
  for (auto [name, mask] : parts) {
    Buffer b = renderSong(song, mask);
    std::printf("%-8s %6.1f LUFS  peak %6.1f dBFS\n", name, loudnessLufs(b, 2), peakDb(b, 2));
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: %s OUTDIR [NAME...] | --balance TRACK\n", argv[0]);
    return 2;
  }
  std::string first = argv[1];
  if (first == "--balance" && argc == 3) return balance(std::stoi(argv[2]));

  std::filesystem::path root(first);
  for (const char* dir : {"EFEITOS", "MELODIAS", "TRILHAS"})
    std::filesystem::create_directories(root / dir);
  std::vector<Output> jobs;
  for (Output& out : catalogue()) {
    bool wanted = argc == 2;
    for (int i = 2; i < argc; ++i) wanted = wanted || out.path.find(argv[i]) != std::string::npos;
    if (wanted) jobs.push_back(std::move(out));
  }

  // Two workers; the long tracks come first in the catalogue so they start at once.
  auto begin = std::chrono::steady_clock::now();
  std::vector<Result> results(jobs.size());
  std::atomic<std::size_t> next{0};
  auto worker = [&] {
    for (std::size_t i; (i = next++) < jobs.size();) results[i] = produce(jobs[i], root);
  };
  unsigned workers = std::clamp(std::thread::hardware_concurrency(), 1u, 2u);
  std::vector<std::thread> pool;
  for (unsigned w = 0; w < workers; ++w) pool.emplace_back(worker);
  for (std::thread& t : pool) t.join();

  int failures = 0;
  std::printf("%-24s %9s %9s %9s %9s %8s\n", "file", "seconds", "peak dB", "LUFS", "limit dB",
              "time s");
  for (std::size_t i = 0; i < jobs.size(); ++i) {
    const Result& r = results[i];
    if (!r.error.empty()) {
      std::fprintf(stderr, "%s: %s\n", jobs[i].path.c_str(), r.error.c_str());
      ++failures;
      continue;
    }
    std::printf("%-24s %9.3f %9.2f %9.2f %9.2f %8.2f\n", jobs[i].path.c_str(), r.seconds, r.peak,
                r.lufs, r.limited, r.elapsed);
  }
  double total = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
  std::printf("%zu files in %.1f s\n", jobs.size() - static_cast<std::size_t>(failures), total);
  return failures ? 1 : 0;
}
