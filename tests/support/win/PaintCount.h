#pragma once

#include <windows.h>

#include <commctrl.h>

namespace ormala::test {

/// Counts the paintings of a window, which must live longer.
class PaintCount {
  public:
    explicit PaintCount(HWND window) : window_(window) {
        SetWindowSubclass(window_, &handle, id(), id());
    }
    PaintCount(const PaintCount&) = delete;
    PaintCount& operator=(const PaintCount&) = delete;
    ~PaintCount() { RemoveWindowSubclass(window_, &handle, id()); }

    [[nodiscard]] int count() const { return count_; }

  private:
    static LRESULT CALLBACK handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                   UINT_PTR /*id*/, DWORD_PTR object) {
        if (message == WM_PAINT) {
            ++reinterpret_cast<PaintCount*>(object)->count_;
        }
        return DefSubclassProc(window, message, wParam, lParam);
    }
    [[nodiscard]] UINT_PTR id() { return reinterpret_cast<UINT_PTR>(this); }

    HWND window_;
    int count_ = 0;
};

}  // namespace ormala::test
