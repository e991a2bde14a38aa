#include "app/win/tools/PanelList.h"

#include "app/ListScroll.h"
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

bool wheelWaits() {
    MSG next{};
    return PeekMessageW(&next, nullptr, WM_MOUSEWHEEL, WM_MOUSEWHEEL, PM_NOREMOVE | PM_QS_INPUT) !=
           FALSE;
}

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

PanelList::PanelList(HWND parent, int id, Clock& clock)
    : PictureBox(parent, id, "picOuter"),
      picInner_(handle(), idInner, "picInner"),
      scrInner_(handle(), idScroll, "scrInner", clock),
      scrolled_(scrInner_.Change.subscribe([this] { moveContent(); })) {
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
    if (!bulkUpdate_) {
        setVisible(ListViewport::shows(size.height));
    }
    adoptHeights();
}

void PanelList::setContentHeight(int height) {
    content_ = height;
    adoptHeights();
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
    const ScrollRange range = rangeOfList(content_, inside().height);
    scrInner_.setEnabled(range.Max != range.Min);
    scrInner_.setMax(range.Max);
    scrInner_.setLargeChange(range.LargeChange);
    moveContent();
}

void PanelList::moveContent() {
    const int formerTop = placeIn(handle(), picInner_.handle()).top;
    // Nothing is erased that is drawn below.
    SetWindowPos(picInner_.handle(), nullptr, 0, contentTop(), contentWidth(), content_,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_DEFERERASE);
    viewChanged.raise();
    uncovered.raise(
        uncoveredPart(formerTop, contentTop(), {contentWidth(), inside().height}, content_));
    RedrawWindow(picInner_.handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

bool PanelList::shows(HWND panel) const {
    const PixelRect box = placeIn(handle(), panel);
    return isVisible() && IsWindowVisible(panel) != FALSE && box.top < inside().height &&
           box.bottom > 0;
}

void PanelList::EnsurePanelVisible(int panelTop, int panelHeight) {
    scrInner_.setValue(valueShowing(panelTop, panelHeight, scrInner_.range()));
    moveContent();
}

void PanelList::Scroll(int notches) {
    glide(glideOfNotches(notches, scrInner_.range(), scrInner_.SmallChange()), wheelWaits,
          [this](int value) { scrInner_.setValue(value); });
}

}  // namespace ormala
