#include "dialogs/win/frmAbout.h"

#include <utility>

#include "language/MlStringModule.h"
#include "pictures/pictures.h"
#include "platform/win/OriginScope.h"
#include "platform/win/fills.h"
#include "platform/win/pixels.h"
#include "platform/win/regions.h"
#include "scene/pixelImages.h"
#include "widgets/ButtonDesign.h"
#include "widgets/dpi.h"
#include "widgets/lookColors.h"

namespace ormala {

namespace {

enum AboutId { idTitle = 11, idVersion, idVersionInfo, idHomepage, idLink, idMail, idMailLink };

constexpr Color ground = dark::liftedGround;

// In pixels at 96 DPI.
constexpr int clientWidth = 400;
constexpr PixelRect logoPlace{20, 20, 100, 100};
constexpr int firstBlock = 116;
constexpr int blockHeight = 48;
constexpr int aboutMargin = 16;

int buttonTopFor(const ProgramFacts& facts) {
    const int blocks = (facts.webAddress.empty() ? 0 : 1) + (facts.mailAddress.empty() ? 0 : 1);
    return firstBlock + blocks * blockHeight;
}

}  // namespace

frmAbout::frmAbout(ProgramFacts facts, LinkOpener openLink)
    : facts_(std::move(facts)), openLink_(std::move(openLink)) {
    open({L"frmAbout", {clientWidth, buttonTopFor(facts_) + textButtonHeight + aboutMargin}});
}

std::unique_ptr<Label> frmAbout::makeLabel(int id, std::string_view name, Color color) const {
    auto label = std::make_unique<Label>(handle(), id, name);
    label->setBackColor(ground);
    label->setTextColor(color);
    return label;
}

void frmAbout::makeControls() {
    lblVersionInfo_ = makeLabel(idVersionInfo, "lblVersionInfo", dark::text);
    lblVersionInfo_->setText(facts_.version);
    lblTitle_ = std::make_unique<TitleLabel>(handle(), idTitle, "lblTitle(0)");
    lblTitle_->setBackColor(ground);
    lblTitle_->setText(facts_.title);
    lblVersion_ = makeLabel(idVersion, "lblVersion", dark::quietText);
    makeBlock(homepage_, idHomepage, "lblHomepage", "lblLink", facts_.webAddress,
              facts_.webAddress);
    makeBlock(mail_, idMail, "lblMail", "lblMailLink", facts_.mailAddress, mailLink(facts_));
    cmdClose_ = makeButton(IDCANCEL, "cmdClose", "Close");
}

/// Without an address there is nothing to see.
void frmAbout::makeBlock(LinkBlock& block, int id, std::string_view heading, std::string_view link,
                         const std::string& address, const std::string& target) {
    block.heading = makeLabel(id, heading, dark::quietText);
    block.link = std::make_unique<LinkLabel>(handle(), id + 1, link);
    block.link->setBackColor(ground);
    block.link->setText(address);
    block.clicking = block.link->Click.subscribe([this, target] { openLink_(target); });
    block.heading->setVisible(!address.empty());
    block.link->setVisible(!address.empty());
}

int frmAbout::placeBlock(const LinkBlock& block, int top) const {
    if (block.link->text().empty()) {
        return top;
    }
    block.heading->setDpi(dpi());
    place(block.heading->handle(), {20, top, clientWidth - 20, top + 16});
    block.link->setDpi(dpi());
    place(block.link->handle(), {18, top + 18, clientWidth - 18, top + 36});
    return top + blockHeight;
}

void frmAbout::layOut() {
    lblTitle_->setDpi(dpi());
    place(lblTitle_->handle(), {120, 20, clientWidth - 20, 72});
    lblVersion_->setDpi(dpi());
    place(lblVersion_->handle(), {122, 80, 172, 96});
    lblVersionInfo_->setDpi(dpi());
    place(lblVersionInfo_->handle(), {176, 80, clientWidth - 20, 96});
    placeBlock(mail_, placeBlock(homepage_, firstBlock));
    const int top = buttonTopFor(facts_);
    place(*cmdClose_,
          {clientWidth - aboutMargin - 88, top, clientWidth - aboutMargin, top + textButtonHeight});
}

void frmAbout::SetRuntimeTexts() {
    setCaption(MlString(374, "About ") + facts_.title);
}

void frmAbout::ApplyLanguage() {
    label(handle(), 349);
    SetRuntimeTexts();
    label(*cmdClose_, 245);
    label(*homepage_.heading, 352);
    label(*mail_.heading, 350);
    label(*lblVersion_, 355);
}

/// Enter on a link.
void frmAbout::command(int id, int notification) {
    for (const LinkBlock* const block : {&homepage_, &mail_}) {
        if (notification == BN_CLICKED && GetDlgItem(handle(), id) == block->link->handle()) {
            SendMessageW(block->link->handle(), BM_CLICK, 0, 0);
        }
    }
}

void frmAbout::paintLogo(HDC context) const {
    const PixelRect place = scaledToDpi(logoPlace, dpi());
    const PixelSize size{place.width(), place.height()};
    PixelImage image = filledImage(size, opaquePixel(ground));
    blendOnto(image, drawPicture(Picture::logo, size), {0, 0});
    const OriginScope origin(context, place.left, place.top);
    copyPixels(context, image);
}

void frmAbout::paint(HDC context) {
    fillRect(context, clientRectangle(), ground);
    ctlFrame1_.draw(context, clientRectangle());
    paintLogo(context);
}

}  // namespace ormala
