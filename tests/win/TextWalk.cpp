#include "win/TextWalk.h"

#include "platform/win/controlName.h"
#include "platform/win/regions.h"
#include "win/ModalPlayer.h"
#include "win/ShownText.h"

namespace ormala {

namespace {

bool hasStyle(HWND window, LONG_PTR bits) {
    return (GetWindowLongPtrW(window, GWL_STYLE) & bits) == bits;
}

bool isGroupBox(HWND window) {
    return classNameOf(window) == "Button" && hasStyle(window, BS_GROUPBOX);
}

/// A ground lies behind whatever stands on it.
bool isGround(HWND window) {
    return classNameOf(window) == "GradShape";
}

/// The part of a list that is scrolled reaches beyond its view.
bool isScrolled(HWND window) {
    return controlName(window) == "picInner";
}

bool isInside(const PixelRect& inner, const PixelRect& outer) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

/// The box below the group's heading, which is all that its content may take.
PixelRect contentOfGroup(HWND group, PixelRect box) {
    box.top += lineHeightOf(group);
    return box;
}

std::string inWords(const PixelRect& box) {
    return "(" + std::to_string(box.left) + ", " + std::to_string(box.top) + ", " +
           std::to_string(box.right) + ", " + std::to_string(box.bottom) + ")";
}

std::string inWords(PixelSize size) {
    return std::to_string(size.width) + " x " + std::to_string(size.height);
}

std::string nameOf(HWND window) {
    return classNameOf(window) + " " + controlName(window);
}

}  // namespace

TextWalk::TextWalk(HWND window, int dpi) : dpi_(dpi) {
    if (hasStyle(window, WS_CAPTION)) {
        if (const ShownText title = shownTitle(window, dpi); !title.fits()) {
            complain(window, "has no room for its title: " + title.text);
        }
    }
    visit(window);
}

void TextWalk::complain(HWND control, const std::string& what) {
    complaints_.push_back(nameOf(control) + " " + what);
}

std::vector<TextWalk::Child> TextWalk::shownChildren(HWND parent) {
    std::vector<Child> found;
    for (HWND child = GetWindow(parent, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        RECT place{};
        GetWindowRect(child, &place);
        MapWindowPoints(HWND_DESKTOP, parent, reinterpret_cast<POINT*>(&place), 2);
        if (hasStyle(child, WS_VISIBLE) && IsRectEmpty(&place) == FALSE) {
            found.push_back({child, fromRect(place)});
        }
    }
    return found;
}

void TextWalk::visit(HWND parent) {
    const std::vector<Child> children = shownChildren(parent);
    for (std::size_t i = 0; i < children.size(); ++i) {
        lookAtTexts(children[i].window);
        lookAtEdges(parent, children[i]);
        for (std::size_t next = i + 1; next < children.size(); ++next) {
            lookAtPair(children[i], children[next]);
        }
        visit(children[i].window);
    }
}

void TextWalk::lookAtTexts(HWND control) {
    const auto texts = shownTexts(control, dpi_);
    if (!texts) {
        complain(control, "has a text and is of unknown kind");
        return;
    }
    for (const ShownText& shown : *texts) {
        ++texts_;
        if (!shown.fits()) {
            complain(control, "cuts off '" + shown.text + "': " + inWords(shown.needed) + " in " +
                                  inWords(shown.room));
        }
    }
}

void TextWalk::lookAtEdges(HWND parent, const Child& child) {
    RECT client{};
    GetClientRect(parent, &client);
    if (!isScrolled(child.window) && !isInside(child.box, fromRect(client))) {
        complain(child.window, "sticks out: " + inWords(child.box) + " in " +
                                   inWords(fromRect(client)) + " of " + nameOf(parent));
    }
}

void TextWalk::lookAtPair(const Child& one, const Child& other) {
    if (isGround(one.window) || isGround(other.window) || !one.box.meets(other.box)) {
        return;
    }
    const auto holds = [](const Child& group, const Child& content) {
        return isGroupBox(group.window) &&
               isInside(content.box, contentOfGroup(group.window, group.box));
    };
    if (!holds(one, other) && !holds(other, one)) {
        complain(one.window, "lies over " + nameOf(other.window) + ": " + inWords(one.box) +
                                 " and " + inWords(other.box));
    }
}

}  // namespace ormala
