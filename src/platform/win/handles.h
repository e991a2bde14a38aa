#pragma once

#include <windows.h>

#include <utility>

#include "platform/win/HandleCount.h"

namespace ormala {

/// Owns a system handle and closes it with `Close`.
template <typename H, auto Close>
class Handle {
  public:
    Handle() = default;
    explicit Handle(H handle) { reset(handle); }
    Handle(Handle&& other) noexcept : handle_(std::exchange(other.handle_, H{})) {}
    Handle& operator=(Handle&& other) noexcept {
        Handle moved(std::move(other));
        std::swap(handle_, moved.handle_);
        return *this;
    }
    ~Handle() { reset(); }

    void reset(H handle = H{}) {
        if (handle_ != H{} && Close(handle_) != FALSE) {
            HandleCount::close();
        }
        if (handle != H{}) {
            HandleCount::take();
        }
        handle_ = handle;
    }
    /// Gives the handle away.
    H release() {
        if (handle_ != H{}) {
            HandleCount::close();
        }
        return std::exchange(handle_, H{});
    }
    [[nodiscard]] H get() const { return handle_; }
    explicit operator bool() const { return handle_ != H{}; }

  private:
    H handle_{};
};

using PenHandle = Handle<HPEN, &DeleteObject>;
using BrushHandle = Handle<HBRUSH, &DeleteObject>;
using FontHandle = Handle<HFONT, &DeleteObject>;
using BitmapHandle = Handle<HBITMAP, &DeleteObject>;
using RegionHandle = Handle<HRGN, &DeleteObject>;
using ContextHandle = Handle<HDC, &DeleteDC>;
using HookHandle = Handle<HHOOK, &UnhookWindowsHookEx>;

/// Selects an object into a device context for its lifetime.
class Selected {
  public:
    Selected(HDC context, HGDIOBJ object)
        : context_(context), former_(SelectObject(context, object)) {}
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;
    ~Selected() { SelectObject(context_, former_); }

  private:
    HDC context_;
    HGDIOBJ former_;
};

/// The device context of a window, the screen's for a null window.
class WindowContext {
  public:
    explicit WindowContext(HWND window) : window_(window), context_(GetDC(window)) {
        HandleCount::take();
    }
    WindowContext(const WindowContext&) = delete;
    WindowContext& operator=(const WindowContext&) = delete;
    ~WindowContext() {
        ReleaseDC(window_, context_);
        HandleCount::close();
    }

    [[nodiscard]] HDC get() const { return context_; }

  private:
    HWND window_;
    HDC context_;
};

/// The device context of a window for drawing over its children too.
class UnclippedContext {
  public:
    explicit UnclippedContext(HWND window)
        : window_(window), context_(GetDCEx(window, nullptr, DCX_CACHE | DCX_CLIPSIBLINGS)) {
        HandleCount::take();
    }
    UnclippedContext(const UnclippedContext&) = delete;
    UnclippedContext& operator=(const UnclippedContext&) = delete;
    ~UnclippedContext() {
        ReleaseDC(window_, context_);
        HandleCount::close();
    }

    [[nodiscard]] HDC get() const { return context_; }

  private:
    HWND window_;
    HDC context_;
};

/// Between the beginning and the end of a window's painting.
class PaintScope {
  public:
    explicit PaintScope(HWND window) : window_(window), context_(BeginPaint(window, &paint_)) {
        HandleCount::take();
    }
    PaintScope(const PaintScope&) = delete;
    PaintScope& operator=(const PaintScope&) = delete;
    ~PaintScope() {
        EndPaint(window_, &paint_);
        HandleCount::close();
    }

    [[nodiscard]] HDC context() const { return context_; }
    [[nodiscard]] const RECT& area() const { return paint_.rcPaint; }

  private:
    HWND window_;
    PAINTSTRUCT paint_{};
    HDC context_;
};

}  // namespace ormala
