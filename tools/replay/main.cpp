// pokerzeva-replay [--seed N] [--effects] [--music] [--cards N] [--chips N] [--exchange N]
//                  [--no-limit] [--full-beats-flush] [--straight-beats-trips] SCRIPT
#include <fstream>
#include <iostream>

#include "replay.h"

int main(int argc, char** argv) {
  std::vector<std::string> args(argv + 1, argv + argc);
  replay::Options options;
  std::string error;
  if (!options.Parse(args, error) || args.size() != 1) {
    std::cerr << (error.empty() ? "" : error + "\n")
              << "usage: pokerzeva-replay [--seed N] [--effects] [--music] [--cards N] "
                 "[--chips N] [--exchange N] [--no-limit] [--full-beats-flush] "
                 "[--straight-beats-trips] SCRIPT\n";
    return 2;
  }
  std::ifstream script(args[0]);
  if (!script) {
    std::cerr << "cannot read " << args[0] << "\n";
    return 2;
  }
  replay::Session session(options, &std::cout);
  session.Start();
  session.PlayScript(script);
  return 0;
}
