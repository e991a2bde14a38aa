#include <windows.h>

// The least that a program with a painted window does: the limit of the start benchmark.

namespace {

LRESULT CALLBACK onMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DESTROY) {
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
    WNDCLASSW made{};
    made.lpfnWndProc = &onMessage;
    made.hInstance = instance;
    made.lpszClassName = L"EmptyWindow";
    made.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    RegisterClassW(&made);
    const HWND window = CreateWindowW(made.lpszClassName, L"", WS_OVERLAPPEDWINDOW, 0, 0, 1920,
                                      1040, nullptr, nullptr, instance, nullptr);
    ShowWindow(window, SW_SHOWNORMAL);
    UpdateWindow(window);
    SetPropW(window, L"Ready", window);
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        DispatchMessageW(&message);
    }
    return 0;
}
