#pragma once

#include <string>

#include "app/Options.h"
#include "app/ToolFile.h"
#include "storage/modStorage.h"
#include "support/MemoryMessagePresenter.h"
#include "support/ToolListStage.h"

namespace ormala {

/// What a run of the program has to do with its two settings files: a full set of tools and the
/// options. There are two variants of both, in which no tool and hardly an option is the same.
class SettingsRun {
  public:
    static constexpr int toolCount = 33;

    /// The folder is there. Store and code page must outlive the object.
    SettingsRun(FileStore& store, const CodePage& codePage, const std::string& folder)
        : toolsPath(folder + "\\Ormala Tools.ini"),
          optionsPath(folder + "\\Ormala.ini"),
          tools_(store, codePage, presenter_),
          options_(store, codePage, presenter_),
          toolFile_({tools_, store, stage_.list, stage_.view},
                    {"3.1.5", [this] { return timeOf(variant_); }}) {
        tools_.setPath(toolsPath);
        options_.setPath(optionsPath);
        stage_.list.prepareFirstTools();
        stage_.list.RemoveAllTools();
    }

    const std::string toolsPath;
    const std::string optionsPath;

    /// Also in place of others: the tools are the same ones each time.
    void makeTools(int variant) {
        variant_ = variant;
        stage_.list.RemoveAllTools();
        for (int i = 0; i < toolCount; ++i) {
            makeTool(i);
        }
    }
    void saveTools() { toolFile_.save(); }
    /// The tools of the file take the place of those of the run.
    void loadTools() { toolFile_.load(); }
    bool toolsEqualFile() { return toolFile_.compare(); }
    [[nodiscard]] std::size_t toolsInUse() const { return stage_.panels().size(); }

    void saveOptions() {
        options_.setPath(optionsPath);
        const auto group = options_.group();
        WriteFileHeader(options_, "3.1.5", timeOf(variant_));
        options_.setCurrentSection(optionsSection);
        writeOptions(options_, optionsOf(variant_));
    }
    Options loadOptions() {
        options_.setPath(optionsPath);
        options_.setCurrentSection(optionsSection);
        const auto group = options_.group();
        return readOptions(options_, 9);
    }
    static Options optionsOf(int variant) {
        Options options;
        options.language = variant == 0 ? 9 : 1031;
        options.editModeFormHeight = variant == 0 ? 0 : 12345;
        options.defaultUnits.LengthUnit = variant == 0 ? "m" : "inches";
        options.worksheetColor = variant == 0 ? 0 : 0xFFFFFF;
        options.aids.grid.enabled = variant != 0;
        options.lens.factor = variant == 0 ? 10 : 2;
        return options;
    }

    /// What the user would have been told.
    [[nodiscard]] std::vector<std::string> messages() const {
        std::vector<std::string> all = presenter_.errors;
        all.insert(all.end(), stage_.messages.errors.begin(), stage_.messages.errors.end());
        return all;
    }

  private:
    static std::string timeOf(int variant) {
        return variant == 0 ? "2024-05-17 08:30:12" : "2025-12-31 23:59:58";
    }

    void makeTool(int i) {
        const double place = 10.0 * i + variant_ + 1.0 / 3;
        if ((i + variant_) % 2 == 0) {
            ctlRatioGrid& tool = stage_.addStencil().RefControl();
            tool.setRectBound({place, place / 7, place + 400, place + 300});
            tool.setRotationAngle(place / 100);
        } else {
            ctlMeasure& tool = stage_.addMeasure().RefControl();
            tool.setLineA({place, place / 7, place + 400, place + 300});
            tool.setLineB({place / 9, place / 7, place + 400, place + 300});
        }
    }

    MemoryMessagePresenter presenter_;
    ToolListStage stage_;
    INIFile tools_;
    INIFile options_;
    ToolFile toolFile_;
    int variant_ = 0;
};

}  // namespace ormala
