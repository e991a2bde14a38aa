#include "app/win/view/frmMenu.h"

#include "language/LanguageSupport.h"
#include "language/MlStringModule.h"
#include "platform/win/text.h"

namespace ormala {

namespace {

UINT idOf(Command entry) {
    return static_cast<UINT>(entry) + 1;
}

void setCaptionAt(HMENU menu, UINT position, const std::string& caption) {
    std::wstring text = wide(caption);
    MENUITEMINFOW item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_STRING;
    item.dwTypeData = text.data();
    SetMenuItemInfoW(menu, position, TRUE, &item);
}

void translate(HMENU menu, std::span<const MenuLineDesign> lines) {
    for (UINT position = 0; position < lines.size(); ++position) {
        if (const std::string text = MlString(lines[position].row, {}); !text.empty()) {
            setCaptionAt(menu, position, text);
        }
    }
}

/// `submenu` answers for a line that opens one.
template <typename SubmenuOf>
void fill(HMENU menu, std::span<const MenuLineDesign> lines, const SubmenuOf& submenuOf) {
    for (const MenuLineDesign& design : lines) {
        if (design.line == MenuLine::separator) {
            AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
        } else if (design.line == MenuLine::entry) {
            AppendMenuW(menu, MF_STRING, idOf(design.entry), wide(design.caption).c_str());
        } else {
            AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(submenuOf(design.line)),
                        wide(design.caption).c_str());
        }
    }
}

}  // namespace

frmMenu::frmMenu()
    : mnuPopup_(CreatePopupMenu()),
      mnuLens_(CreatePopupMenu()),
      mnuLensMagnification_(CreatePopupMenu()) {
    WindowDesign design;
    design.className = L"frmMenu";
    design.style = WS_POPUP;
    create(design);
    setCaption("frmWorksheet has no border and thus cannot have a menu.");
    for (int factor = 1; factor <= largestLensFactor; ++factor) {
        AppendMenuW(mnuLensMagnification_, MF_STRING, idOf(commandOfLensFactor(factor)),
                    wide(captionOfLensFactor(factor)).c_str());
    }
    const auto submenuOf = [this](MenuLine line) {
        return line == MenuLine::lensMenu ? mnuLens_ : mnuLensMagnification_;
    };
    fill(mnuLens_, lensMenuDesign(), submenuOf);
    fill(mnuPopup_.get(), popupMenuDesign(), submenuOf);
    ApplyLanguage();
    languageChange_ = GetLanguageSupport().LanguageChange.subscribe([this] { ApplyLanguage(); });
}

void frmMenu::ApplyLanguage() const {
    translate(mnuPopup_.get(), popupMenuDesign());
    translate(mnuLens_, lensMenuDesign());
}

bool frmMenu::isChecked(Command entry) const {
    return (GetMenuState(mnuPopup_.get(), idOf(entry), MF_BYCOMMAND) & MF_CHECKED) != 0;
}

void frmMenu::setEnabled(Command entry, bool enabled) const {
    EnableMenuItem(mnuPopup_.get(), idOf(entry),
                   static_cast<UINT>(MF_BYCOMMAND | (enabled ? MF_ENABLED : MF_GRAYED)));
}

bool frmMenu::isEnabled(Command entry) const {
    return (GetMenuState(mnuPopup_.get(), idOf(entry), MF_BYCOMMAND) & MF_GRAYED) == 0;
}

void frmMenu::showState(const ViewState& state) const {
    for (const auto lines : {popupMenuDesign(), lensMenuDesign()}) {
        for (const MenuLineDesign& design : lines) {
            if (const auto on = state.isOn(design.entry)) {
                CheckMenuItem(mnuPopup_.get(), idOf(design.entry),
                              static_cast<UINT>(MF_BYCOMMAND | (*on ? MF_CHECKED : MF_UNCHECKED)));
            }
        }
    }
    const int factor = state.options().lens.factor;
    CheckMenuRadioItem(mnuLensMagnification_, idOf(commandOfLensFactor(1)),
                       idOf(commandOfLensFactor(largestLensFactor)),
                       idOf(commandOfLensFactor(factor)), MF_BYCOMMAND);
    // Without enlargement there is no grid.
    setEnabled(Command::lensGrid, factor != 1);
}

std::optional<Command> frmMenu::popUp(HMENU menu, HWND owner, POINT at) {
    // A menu whose owner is not in front stays open when the user clicks elsewhere.
    SetForegroundWindow(owner);
    const BOOL chosen =
        TrackPopupMenuEx(menu, TPM_RETURNCMD | TPM_RIGHTBUTTON, at.x, at.y, owner, nullptr);
    PostMessageW(owner, WM_NULL, 0, 0);
    return chosen != 0 ? std::optional(static_cast<Command>(chosen - 1)) : std::nullopt;
}

}  // namespace ormala
