#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>

#include "support/FakeMousePort.h"
#include "support/FakeOverlayItem.h"
#include "support/FakeSheetPort.h"
#include "support/FakeTextMeter.h"
#include "support/QuietToolHost.h"
#include "worksheet/Aids.h"
#include "worksheet/Sheet.h"
#include "worksheet/SheetMouse.h"

namespace ormala {

/// Makes fake tools, named by their kind and their number in it from 0.
class FakeToolFactory : public ToolFactory {
  public:
    explicit FakeToolFactory(ToolLog& log) : log_(log) {}

    /// No tool of the measuring kind can be made.
    bool onlyStencils = false;

    std::unique_ptr<OverlayItem> makeTool(ToolKind kind, ToolHost& /*host*/) override {
        if (onlyStencils && kind != ToolKind::stencil) {
            return nullptr;
        }
        const char* word = kind == ToolKind::stencil ? "stencil " : "measure ";
        const int number = made_.at(static_cast<std::size_t>(kind))++;
        return std::make_unique<FakeOverlayItem>(word + std::to_string(number), log_);
    }

  private:
    ToolLog& log_;
    std::array<int, Sheet::kinds> made_{};
};

/// A sheet with nothing on it yet.
class SheetFixture : public testing::Test {
  protected:
    static constexpr int stencil = static_cast<int>(ToolKind::stencil);
    static constexpr int measurement = static_cast<int>(ToolKind::measurement);

    /// A visible tool that takes the mouse in `box`.
    FakeOverlayItem& add(int kind, const PixelRect& box = {}) {
        auto& item = dynamic_cast<FakeOverlayItem&>(*sheet_.AddNewControl(kind));
        item.box = box;
        return item;
    }

    FakeOverlayItem& addFirst(ToolKind kind, bool visible) {
        sheet_.makeFirstControl(kind);
        auto& item =
            dynamic_cast<FakeOverlayItem&>(*sheet_.GetFirstControl(static_cast<int>(kind)));
        sheet_.setVisible(item, visible);
        return item;
    }

    /// How often something happened to a tool.
    [[nodiscard]] int noted(const FakeOverlayItem& item, const std::string& what) const {
        return static_cast<int>(std::ranges::count(log_, item.name + " " + what));
    }

    ToolLog log_;
    FakeSheetPort port_;
    QuietToolHost host_;
    FakeToolFactory factory_{log_};
    Sheet sheet_{port_, host_, factory_};
};

/// The same with its aids and its mouse.
class SheetMouseFixture : public SheetFixture {
  protected:
    AidOptions options_;
    FakeMousePort window_;
    FakeTextMeter meter_;
    TextForm form_;
    Aids aids_{options_, sheet_, window_, {meter_, form_}};
    SheetMouse mouse_{sheet_, aids_, window_};
};

}  // namespace ormala
