#pragma once

#include "dialogs/OptionValues.h"
#include "dialogs/win/OptionsPage.h"

namespace ormala {

/// Language and border of the worksheet.
class GeneralPage : public OptionsPage {
  public:
    /// The values must outlive the page.
    GeneralPage(HWND parent, int id, OptionValues& values);

    void ApplyLanguage() override;

  private:
    OptionGroup optLanguage_;
    GroupBox fraLanguage_;
    std::unique_ptr<CheckButton> chkTemplateWithBorder_;
};

}  // namespace ormala
