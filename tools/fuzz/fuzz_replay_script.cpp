// The replay tool's script reader: any text, line by line, into a game that has started. Every
// line is played or refused; nothing may crash, overflow or hang.
#include <cstddef>
#include <cstdint>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "replay.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  // A first line "# options: ..." gives the tool's options, as the replay tests read them.
  replay::Options options;
  const std::string header = "# options:";
  if (text.compare(0, header.size(), header) == 0) {
    std::istringstream first(text.substr(header.size(), text.find('\n') - header.size()));
    std::vector<std::string> args;
    for (std::string word; first >> word;) args.push_back(word);
    std::string error;
    if (!options.Parse(args, error) || !args.empty()) return 0;
  }
  // Waits the tool accepts run the clock with every timer ticking, which costs time and finds
  // nothing new: an input that would wait more than ten minutes in all is skipped. Waits the tool
  // refuses (over a day) are kept, as their refusal is part of what is read.
  long long waited = 0;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    std::string word, what;
    long long ms = 0;
    words >> word;
    if (word == "menu") words >> what;
    if ((word == "wait" || what == "creditos") && words >> ms && ms > 0 && ms <= 86'400'000)
      waited += ms;
  }
  if (waited > 600'000) return 0;
  std::ostringstream out;
  replay::Session session(options, &out);
  session.Start();
  std::istringstream script(text);
  session.PlayScript(script);
  return 0;
}
