#include <memory>
#include <string>

#include "app/ToolFile.h"
#include "fuzz/Require.h"
#include "fuzz/Targets.h"
#include "support/MemoryINIFile.h"
#include "support/QuietToolList.h"

namespace ormala {

namespace {

/// A program that goes on from input to input, as a user goes on who opens one file after another.
struct Running {
    MemoryINIFile ini;
    QuietToolList stage;
    ToolFile file{{ini.file, ini.store, stage.list, stage.view},
                  {"1.0.0", [] { return std::string("2024-05-17 08:30:12"); }}};

    /// A tool of each kind is in use then, whatever the last input was.
    void begin() {
        stage.list.RemoveAllTools();
        stage.addStencil();
        stage.addMeasure();
        stage.view.log.clear();
    }
    /// What is saved then.
    std::string load(const std::string& bytes) {
        ini.bytes() = bytes;
        require(file.load(), "any file can be loaded");
        require(ini.bytes() == bytes, "loading leaves the file alone");
        require(stage.panels().size() <= ToolList::largestCount, "there is a limit of tools");
        require(file.save(), "any set of tools can be saved");
        return ini.bytes();
    }
};

}  // namespace

void fuzzRunningList(const std::uint8_t* data, std::size_t size) {
    static Running running;
    const std::string input(reinterpret_cast<const char*>(data), size);
    running.begin();
    const std::string saved = running.load(input);
    require(running.load(saved) == saved, "a set that came back is saved as before");
}

}  // namespace ormala
