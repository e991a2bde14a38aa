#include "dialogs/win/GeneralPage.h"

#include "language/MlStringModule.h"
#include "widgets/win/labeling.h"

namespace ormala {

namespace {

enum GeneralId { idLanguage = 11, idLanguageFrame = 21, idTemplateWithBorder, idLogicalPixels };

}  // namespace

GeneralPage::GeneralPage(HWND parent, int id, OptionValues& values) : OptionsPage(parent, id, 0) {
    make(optLanguage_, {idLanguage, "optLanguage", languageChoices}, values.language);
    // In both languages at once, so that everyone finds the own one.
    optLanguage_[0].setCaption("English / Englisch");
    optLanguage_[1].setCaption("German / Deutsch");
    chkTemplateWithBorder_ =
        makeCheck(idTemplateWithBorder, "chkTemplateWithBorder", values.templateWithBorder);
    chkLogicalPixels_ = makeCheck(idLogicalPixels, "chkLogicalPixels", values.logicalPixels);
    makeFrame(fraLanguage_, idLanguageFrame, "fraLanguage");
    fraLanguage_.setText(" Language / Sprache ");
}

void GeneralPage::ApplyLanguage() {
    label(*chkTemplateWithBorder_, 86);
    label(*chkLogicalPixels_, 645);
    chkLogicalPixels_->SetTooltip(MlString(646, {}));
}

}  // namespace ormala
