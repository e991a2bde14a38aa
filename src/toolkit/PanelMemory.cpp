#include "toolkit/PanelMemory.h"

#include <utility>

namespace ormala {

ButtonLook firstLook(const PanelControl& row) {
    return {row.part == PanelPart::image ? dark::liftedGround : dark::off, false, systemButtonText,
            row.picture};
}

void PanelMemory::showTexts(const std::vector<ControlText>& texts) {
    for (const ControlText& shown : texts) {
        told_[shown.control].text = shown.text;
    }
}

void PanelMemory::showButton(ControlId button, const ButtonLook& look) {
    Told& told = told_[button];
    const ButtonLook former = told.look.value_or(ButtonLook{});
    told.look = look;
    if (!look.text) {
        told.look->text = former.text;
    }
    if (look.picture) {
        told.maker.reset();
    } else {
        told.look->picture = former.picture;
    }
}

void PanelMemory::showPicture(ControlId button, PictureMaker maker) {
    told_[button].maker = std::move(maker);
}

PanelMemory::Told PanelMemory::toldOf(ControlId control) const {
    const auto at = told_.find(control);
    return at != told_.end() ? at->second : Told{};
}

void PanelMemory::tell(const PanelDesign& design, PanelFace& face) const {
    std::vector<ControlText> texts;
    for (const PanelControl& row : design.controls) {
        if (row.id == CommonControl::none) {
            continue;
        }
        const Told told = toldOf(row.id);
        if (row.part >= PanelPart::button) {
            tellButton(row, told, face);
        } else if (told.text || row.caption == 0) {
            texts.push_back({row.id, told.text.value_or(std::string())});
        }
    }
    face.showTexts(texts);
    face.showLook(look_);
    face.enable(enabling_);
}

void PanelMemory::tellButton(const PanelControl& row, const Told& told, PanelFace& face) {
    ButtonLook look = firstLook(row);
    if (told.look) {
        look.back = told.look->back;
        look.down = told.look->down;
        look.text = told.look->text ? told.look->text : look.text;
        look.picture = told.look->picture ? told.look->picture : look.picture;
    }
    face.showButton(row.id, look);
    if (told.maker || !look.picture) {
        face.showPicture(row.id, told.maker.value_or(PictureMaker()));
    }
}

}  // namespace ormala
