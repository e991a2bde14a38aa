#pragma once

#include <windows.h>

#include "app/Documents.h"
#include "app/win/shell/CommandBar.h"

namespace ormala {

/// What the documents ask of the user, in dialogs of the control window, and their path line.
class DocumentDialogs : public DocumentView {
  public:
    /// The bar must outlive it.
    DocumentDialogs(HWND owner, CommandBar& bar) : owner_(owner), bar_(bar) {}

    Answer ask(const std::string& question) override;
    std::string pickFile(bool forSaving) override;
    std::string CompactPathForDisplay(const std::string& path) override;
    void showPathLine(const PathLine& line) override { bar_.showPathLine(line); }

  private:
    HWND owner_;
    CommandBar& bar_;
};

}  // namespace ormala
