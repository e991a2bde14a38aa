#pragma once

#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Event.h"
#include "dialogs/optionChoices.h"
#include "modAPI/PixelRect.h"
#include "platform/win/StandardControl.h"
#include "platform/win/Window.h"
#include "widgets/win/CheckButton.h"
#include "widgets/win/GroupBox.h"
#include "widgets/win/OptionGroup.h"
#include "widgets/win/ctlSlider.h"

namespace ormala {

/// A page of the options dialog. Its controls show values that the dialog holds, and bring there
/// what the user makes of them; a value that the user leaves alone stays as it is.
class OptionsPage : public Window {
  public:
    ~OptionsPage() override { destroy(); }

    /// Shows the values as they are now.
    void show();
    /// Places the controls for a screen of that resolution and gives them the dialog's font.
    void layOut(int dpi, HFONT font);
    virtual void ApplyLanguage() = 0;

  protected:
    /// Invisible, with the control name "picTab(number)".
    OptionsPage(HWND parent, int id, int number);

    struct OptionDesign {
        int firstId;
        std::string_view name;
        /// What each option stands for.
        std::span<const int> choices;
        /// In the names of the options.
        int firstNumber = 0;
    };

    // Each shows the given value, if any, and changes it: the value must outlive the page.
    void make(OptionGroup& group, const OptionDesign& design, int& value);
    std::unique_ptr<CheckButton> makeCheck(int id, std::string_view name);
    std::unique_ptr<CheckButton> makeCheck(int id, std::string_view name, bool& value);
    std::unique_ptr<ctlSlider> makeSlider(int id, std::string_view name, SliderRange range);
    void makeLabel(StandardControl& label, int id, std::string_view name);
    void makeFrame(GroupBox& frame, int id, std::string_view name);

    void add(ZelvikButtonXP& button, std::string_view name);
    /// A control that places itself, in pixels of that resolution.
    void add(std::string_view name, std::function<void(const PixelRect& box, int dpi)> place);
    void whenShown(std::function<void()> show) { showing_.push_back(std::move(show)); }
    void whenChanged(Event<>& event, std::function<void()> handler) {
        handlers_.push_back(event.subscribe(std::move(handler)));
    }
    /// The place of a control in the present resolution.
    [[nodiscard]] PixelRect placeOf(std::string_view name) const;
    [[nodiscard]] int dpi() const { return dpi_; }

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT onPaint();
    /// Draws what is no child on the ground.
    virtual void paint(HDC /*context*/) {}

    void addStandard(const StandardControl& control, std::string_view name);

    int number_;
    int dpi_ = 96;
    HFONT font_ = nullptr;
    std::map<std::string, std::function<void(const PixelRect&, int)>, std::less<>> placing_;
    std::vector<std::function<void()>> showing_;
    std::vector<Subscription> handlers_;
};

}  // namespace ormala
