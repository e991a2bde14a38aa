#pragma once

#include "dialogs/OptionValues.h"
#include "dialogs/win/OptionsPage.h"

namespace ormala {

/// Language, border of the worksheet, and what the read-outs count in.
class GeneralPage : public OptionsPage {
  public:
    /// The values must outlive the page.
    GeneralPage(HWND parent, int id, OptionValues& values);

    void ApplyLanguage() override;

  private:
    OptionGroup optLanguage_;
    GroupBox fraLanguage_;
    std::unique_ptr<CheckButton> chkTemplateWithBorder_;
    std::unique_ptr<CheckButton> chkLogicalPixels_;
};

}  // namespace ormala
