#pragma once

#include <windows.h>

#include <utility>

#include "app/OptionsFile.h"
#include "app/version.h"
#include "dialogs/win/WindowsMessagePresenter.h"
#include "platform/win/PlaceAcrossDpi.h"
#include "storage/INIFile.h"
#include "storage/WindowPlacement.h"

namespace ormala {

/// The sections of the windows' places.
namespace formSection {
inline constexpr const char* control = "FormSettings";
inline constexpr const char* frame = "FormResizer";
inline constexpr const char* lens = "FormLens";
}  // namespace formSection

/// The options file: the options, and the places of the windows in sections of their own.
class OptionsKeeper {
  public:
    /// Opens the file of the user, whose failures are told at once. Both must outlive it.
    OptionsKeeper(FileStore& store, const CodePage& codePage);

    /// What the last run left; `localeLanguage` is the language of a first start.
    Options read(int localeLanguage);
    /// Brings a hidden window back to where it was; `cascade` as for `restoredPlacement`.
    void restorePlace(HWND window, PlaceAcrossDpi& place, const char* section, bool cascade);
    /// The same place for a window that takes it by itself.
    RestoredPlacement place(HWND window, const char* section);

    /// What the file holds by the end of the start.
    void noteAsSaved(KeptOptions kept) { contents_.noteAsSaved(std::move(kept)); }
    /// Whether it is other than that, or than what was saved last.
    [[nodiscard]] bool differ(const KeptOptions& kept) const { return contents_.differ(kept); }
    /// Writes everything; false if it could not be written. `quietly` says that the user hears
    /// nothing of that.
    bool save(const KeptOptions& kept, bool quietly);
    /// The same, quietly, if it differs.
    bool saveChanges(const KeptOptions& kept) { return !differ(kept) || save(kept, true); }

    /// A message for what has failed so far.
    void ShowLastError() { file_.ShowLastError(); }

  private:
    WindowsMessagePresenter messages_{applicationTitle};
    INIFile file_;
    OptionsFile contents_;
};

}  // namespace ormala
