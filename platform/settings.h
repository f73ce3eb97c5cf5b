// The persistent settings store: text values by application, section and key.
#pragma once

#include <map>
#include <string>
#include <tuple>

namespace vb {

class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  virtual std::string Get(const std::string& app, const std::string& section,
                          const std::string& key) = 0;
  virtual void Save(const std::string& app, const std::string& section, const std::string& key,
                    const std::string& value) = 0;
};

// Kept in memory: tests and the replay tool, which never touch the player's stored seed.
class MemorySettings : public SettingsStore {
 public:
  std::string Get(const std::string& app, const std::string& section,
                  const std::string& key) override;
  void Save(const std::string& app, const std::string& section, const std::string& key,
            const std::string& value) override;
  std::map<std::tuple<std::string, std::string, std::string>, std::string> values;
};

// The store the game uses; a MemorySettings until the desktop front installs its own.
SettingsStore& Settings();
void InstallSettings(SettingsStore* store);  // nullptr puts the in-memory store back

std::string GetSetting(const std::string& app, const std::string& section, const std::string& key);
void SaveSetting(const std::string& app, const std::string& section, const std::string& key,
                 const std::string& value);

}  // namespace vb
