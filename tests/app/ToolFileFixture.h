#pragma once

#include <gtest/gtest.h>

#include <string>

#include "app/ToolFile.h"
#include "support/ManualLanguage.h"
#include "support/MemoryINIFile.h"
#include "support/ToolListStage.h"

namespace ormala {

/// Real tools and panels over files in memory. There is no tool at first.
class ToolFileFixture : public testing::Test {
  protected:
    ToolFileFixture() {
        stage_.list.prepareFirstTools();
        stage_.list.RemoveAllTools();
        stage_.view.refreshes = 0;
    }

    std::string& bytes() { return ini_.bytes(); }
    /// Gives the file these contents and loads it.
    void loadText(std::string text) {
        bytes() = std::move(text);
        EXPECT_TRUE(toolFile_.load());
    }
    /// The file's lines from this one on.
    std::string from(const std::string& line) {
        const std::size_t at = bytes().find(line);
        return at == std::string::npos ? std::string() : bytes().substr(at);
    }

    /// The same text with one line in place of another.
    static std::string replaced(std::string text, const std::string& line,
                                const std::string& with) {
        const std::size_t at = text.find(line);
        EXPECT_NE(at, std::string::npos) << line;
        return at == std::string::npos ? text : text.replace(at, line.size(), with);
    }
    [[nodiscard]] std::string failedToSave() const {
        return "Failed to save file '" + ini_.file.Path() + "'.";
    }

    ManualLanguage language_{languageEnglish};
    MemoryINIFile ini_;
    ToolListStage stage_;
    std::string time_ = "2024-05-17 08:30:12";
    ToolFile toolFile_{{ini_.file, ini_.store, stage_.list, stage_.view},
                       {"3.1.5", [this] { return time_; }}};
};

}  // namespace ormala
