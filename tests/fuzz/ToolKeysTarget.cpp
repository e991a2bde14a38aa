#include <string>
#include <vector>

#include "fuzz/Require.h"
#include "fuzz/Targets.h"
#include "support/MemoryINIFile.h"
#include "support/QuietToolList.h"

namespace ormala {

namespace {

constexpr const char* section = "Tool 1";

/// One tool of each kind, which takes the keys of one input after another.
struct TwoTools {
    TwoTools() {
        for (auto* panel : stage.panels()) {
            panels.push_back(panel->core.get());
        }
    }

    QuietToolList stage;
    std::vector<SettingControl*> panels;
};

void load(SettingControl& panel, const std::string& bytes) {
    MemoryINIFile ini;
    ini.bytes() = bytes;
    const auto group = ini.file.group();
    ini.file.setCurrentSection(section);
    panel.LoadFromFile(ini.file);
}

std::string saved(const SettingControl& panel) {
    MemoryINIFile ini;
    {
        const auto group = ini.file.group();
        ini.file.setCurrentSection(section);
        panel.StoreToFile(ini.file);
    }
    return ini.bytes();
}

}  // namespace

void fuzzToolKeys(const std::uint8_t* data, std::size_t size) {
    static TwoTools tools;
    const std::string input(reinterpret_cast<const char*>(data), size);
    for (SettingControl* panel : tools.panels) {
        load(*panel, input);
        const std::string once = saved(*panel);
        load(*panel, once);
        require(saved(*panel) == once, "a tool that came back is saved as before");
    }
}

}  // namespace ormala
