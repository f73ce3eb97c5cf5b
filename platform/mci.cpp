#include "platform/mci.h"

namespace vb {
namespace {
std::vector<std::string> g_sent;
MciSink g_sink;
}  // namespace

void mciExecute(const std::string& command) {
  g_sent.push_back(command);
  if (g_sink) g_sink(command);
}

const std::vector<std::string>& MciSent() {
  return g_sent;
}
void ClearMciSent() {
  g_sent.clear();
}
void InstallMciSink(MciSink sink) {
  g_sink = std::move(sink);
}

}  // namespace vb
