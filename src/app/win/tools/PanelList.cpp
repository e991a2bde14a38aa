#include "app/win/tools/PanelList.h"

#include "app/PanelLayout.h"
#include "app/settingsLayout.h"
#include "platform/win/controlName.h"
#include "platform/win/fills.h"
#include "platform/win/handles.h"
#include "platform/win/regions.h"
#include "widgets/lookColors.h"

namespace ormala {

namespace {

enum ControlId { idInner = 1, idScroll };

}  // namespace

PictureBox::PictureBox(HWND parent, int id, std::string_view name) {
    WindowDesign design;
    design.className = L"PictureBox";
    design.style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
    design.extendedStyle = WS_EX_CONTROLPARENT;
    design.owner = parent;
    design.id = id;
    create(design);
    setControlName(handle(), name);
}

std::optional<LRESULT> PictureBox::onMessage(UINT message, WPARAM wParam, LPARAM /*lParam*/) {
    if (message != WM_ERASEBKGND) {
        return std::nullopt;
    }
    const auto context = reinterpret_cast<HDC>(wParam);
    const RECT client = clientRectangle();
    fillRect(context, client, dark::ground);
    return 1;
}

PanelList::PanelList(HWND parent, int id)
    : PictureBox(parent, id, "picOuter"),
      picInner_(handle(), idInner, "picInner"),
      scrInner_(handle(), idScroll, "scrInner"),
      scrolled_(scrInner_.Change.subscribe([this] {
          scroll_.setValue(scrInner_.Value());
          moveContent();
      })) {
    setDpi(dpi_);
}

PixelSize PanelList::inside() const {
    const RECT client = clientRectangle();
    return {static_cast<int>(client.right), static_cast<int>(client.bottom)};
}

int PanelList::contentWidth() const {
    return ListViewport(inside().width, inside().height, listScrollBarWidth(dpi_)).contentWidth;
}

void PanelList::setDpi(int dpi) {
    dpi_ = dpi;
    scrInner_.setDpi(dpi);
    scroll_.setSmallChange(listSmallChange(dpi));
    scrInner_.setSmallChange(listSmallChange(dpi));
    layOut();
}

void PanelList::resize(const PixelRect& box) {
    place(box);
    layOut();
}

void PanelList::layOut() {
    const PixelSize size = inside();
    const ListViewport viewport(size.width, size.height, listScrollBarWidth(dpi_));
    scrInner_.place({viewport.scrollLeft, 0, size.width, viewport.scrollHeight});
    adoptHeights();
    if (!bulkUpdate_) {
        setVisible(ListViewport::shows(size.height));
    }
}

void PanelList::setContentHeight(int height) {
    content_ = height;
    adoptHeights();
}

PixelRect PanelList::placeInContent(HWND panel) const {
    RECT place{};
    GetWindowRect(panel, &place);
    MapWindowPoints(HWND_DESKTOP, picInner(), reinterpret_cast<POINT*>(&place), 2);
    return fromRect(place);
}

void PanelList::setBulkUpdate(bool bulkUpdate) {
    bulkUpdate_ = bulkUpdate;
    if (bulkUpdate) {
        setVisible(false);
    } else {
        layOut();
    }
}

void PanelList::adoptHeights() {
    scroll_.setHeights(content_, inside().height);
    scrInner_.setEnabled(scroll_.enabled());
    scrInner_.setMax(scroll_.enabled() ? scroll_.Max() : 0);
    scrInner_.setLargeChange(static_cast<int>(scroll_.LargeChange()));
    // Within the new bounds, or 0 if all of the content shows.
    scroll_.setValue(scroll_.Value());
    moveContent();
}

void PanelList::moveContent() {
    picInner_.place({0, scroll_.Value(), contentWidth(), scroll_.Value() + content_});
    scrInner_.setValue(scroll_.Value());
    RedrawWindow(picInner_.handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    viewChanged.raise();
}

bool PanelList::shows(HWND panel) const {
    const PixelRect box = placeInContent(panel);
    const int top = scroll_.Value() + box.top;
    return isVisible() && IsWindowVisible(panel) != FALSE && top < inside().height &&
           top + box.height() > 0;
}

void PanelList::EnsurePanelVisible(int panelTop, int panelHeight) {
    scroll_.EnsurePanelVisible(panelTop, panelHeight);
    moveContent();
}

void PanelList::Scroll(bool down) {
    ListScroll glide = scroll_;
    for (const int position : glide.Scroll(down)) {
        scrInner_.setValue(position);
    }
}

void PanelList::tick() {
    if (scrInner_.wantsTicks()) {
        scrInner_.tick();
    }
}

}  // namespace ormala
