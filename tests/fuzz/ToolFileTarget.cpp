#include <string>

#include "app/ToolFile.h"
#include "fuzz/Require.h"
#include "fuzz/Targets.h"
#include "support/MemoryINIFile.h"
#include "support/ToolListStage.h"

namespace ormala {

namespace {

/// What was loaded is saved and loaded again to the same tools.
void checkRoundTrip(ToolFile& toolFile, MemoryINIFile& ini, const ToolListStage& stage) {
    const std::string kinds = stage.kinds();
    require(toolFile.save(), "any set of tools can be saved");
    const std::string saved = ini.bytes();
    require(toolFile.load(), "a saved file can be loaded");
    require(stage.kinds() == kinds, "a set comes back in its order");
    require(toolFile.save(), "a set that came back can be saved");
    require(ini.bytes() == saved, "a set that came back is saved as before");
}

}  // namespace

void fuzzToolFile(const std::uint8_t* data, std::size_t size) {
    MemoryINIFile ini;
    ini.bytes().assign(reinterpret_cast<const char*>(data), size);
    const std::string contents = ini.bytes();
    ToolListStage stage;
    stage.list.prepareFirstTools();
    ToolFile toolFile({ini.file, ini.store, stage.list, stage.view},
                      {"1.0.0", [] { return std::string("2024-05-17 08:30:12"); }});

    require(toolFile.load(), "any file can be loaded");
    require(ini.bytes() == contents, "loading leaves the file alone");
    require(stage.panels().size() < ToolList::largestCount + 1, "there is a limit of tools");
    require(stage.panels().empty() || stage.panels().front()->core->Selected(),
            "the first tool is selected");
    checkRoundTrip(toolFile, ini, stage);
}

}  // namespace ormala
