#pragma once

#include <windows.h>

#include <initializer_list>

#include "app/Options.h"
#include "app/version.h"
#include "dialogs/win/WindowsMessagePresenter.h"
#include "platform/win/PlaceAcrossDpi.h"
#include "storage/INIFile.h"
#include "storage/WindowPlacement.h"

namespace ormala {

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

    struct PlacedWindow {
        HWND window;
        const char* section;
    };
    /// Writes everything. `quietly` says that the user hears nothing of a failure.
    void save(const Options& options, std::initializer_list<PlacedWindow> windows, bool quietly);

    /// A message for what has failed so far.
    void ShowLastError() { file_.ShowLastError(); }

  private:
    WindowsMessagePresenter messages_{applicationTitle};
    INIFile file_;
};

}  // namespace ormala
