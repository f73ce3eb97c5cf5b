#include "platform/settings.h"

namespace vb {

std::string MemorySettings::Get(const std::string& app, const std::string& section,
                                const std::string& key) {
  auto it = values.find({app, section, key});
  return it == values.end() ? std::string() : it->second;
}

void MemorySettings::Save(const std::string& app, const std::string& section,
                          const std::string& key, const std::string& value) {
  values[{app, section, key}] = value;
}

namespace {
MemorySettings g_memory;
SettingsStore* g_store = &g_memory;
}  // namespace

SettingsStore& Settings() {
  return *g_store;
}
void InstallSettings(SettingsStore* store) {
  if (store) {
    g_store = store;
  } else {
    g_memory.values.clear();
    g_store = &g_memory;
  }
}

std::string GetSetting(const std::string& app, const std::string& section, const std::string& key) {
  return g_store->Get(app, section, key);
}
void SaveSetting(const std::string& app, const std::string& section, const std::string& key,
                 const std::string& value) {
  g_store->Save(app, section, key, value);
}

}  // namespace vb
