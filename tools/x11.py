"""The little of the X library that the stage asks of its display and no command tells, or not at once."""

import ctypes
import ctypes.util
import sys

IS_VIEWABLE = 2
ANY_TYPE = 0
LONGEST_LIST = 4096


class WindowAttributes(ctypes.Structure):
    _fields_ = [
        *[(name, ctypes.c_int) for name in ("x", "y", "width", "height", "border_width", "depth")],
        ("visual", ctypes.c_void_p),
        ("root", ctypes.c_ulong),
        *[(name, ctypes.c_int) for name in ("class", "bit_gravity", "win_gravity", "backing_store")],
        ("backing_planes", ctypes.c_ulong),
        ("backing_pixel", ctypes.c_ulong),
        ("save_under", ctypes.c_int),
        ("colormap", ctypes.c_ulong),
        ("map_installed", ctypes.c_int),
        ("map_state", ctypes.c_int),
        ("all_event_masks", ctypes.c_long),
        ("your_event_mask", ctypes.c_long),
        ("do_not_propagate_mask", ctypes.c_long),
        ("override_redirect", ctypes.c_int),
        ("screen", ctypes.c_void_p),
    ]


ErrorHandler = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)


@ErrorHandler
def bear(_display, _error):
    """A window may have gone: the request tells so by its result."""
    return 0


class Display:
    def __init__(self):
        self.x11 = ctypes.CDLL(ctypes.util.find_library("X11") or "libX11.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self.x11.XInternAtom.restype = ctypes.c_ulong
        self.x11.XGetSelectionOwner.restype = ctypes.c_ulong
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(None))
        if not self.display:
            sys.exit("The display cannot be opened.")
        self.x11.XSetErrorHandler(bear)
        self.root = self.x11.XDefaultRootWindow(self.display)

    def atom(self, name):
        return ctypes.c_ulong(self.x11.XInternAtom(self.display, name.encode(), False))

    def is_selection_owned(self, name):
        return self.x11.XGetSelectionOwner(self.display, self.atom(name)) != 0

    def managed_windows(self):
        """Those that the window manager has placed, and given their frame."""
        kind, count, rest = ctypes.c_ulong(), ctypes.c_ulong(), ctypes.c_ulong()
        size = ctypes.c_int()
        values = ctypes.POINTER(ctypes.c_ulong)()
        self.x11.XGetWindowProperty(
            self.display, ctypes.c_ulong(self.root), self.atom("_NET_CLIENT_LIST"),
            ctypes.c_long(0), ctypes.c_long(LONGEST_LIST), False, ctypes.c_ulong(ANY_TYPE),
            ctypes.byref(kind), ctypes.byref(size), ctypes.byref(count), ctypes.byref(rest),
            ctypes.byref(values))
        found = set(values[: count.value]) if values else set()
        if values:
            self.x11.XFree(values)
        return found

    def place(self, window):
        """Where its inside begins on the screen, and its size; None until it is shown where it is to stay."""
        attributes = WindowAttributes()
        if not self.x11.XGetWindowAttributes(
            self.display, ctypes.c_ulong(window), ctypes.byref(attributes)
        ):
            return None
        is_managed = attributes.override_redirect or window in self.managed_windows()
        if attributes.map_state != IS_VIEWABLE or not is_managed:
            return None
        x, y, child = ctypes.c_int(), ctypes.c_int(), ctypes.c_ulong()
        self.x11.XTranslateCoordinates(
            self.display, ctypes.c_ulong(window), ctypes.c_ulong(self.root), 0, 0,
            ctypes.byref(x), ctypes.byref(y), ctypes.byref(child))
        return x.value, y.value, attributes.width, attributes.height
