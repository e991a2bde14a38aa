#pragma once

#include <memory>
#include <utility>

#include "modAPI/PixelRect.h"
#include "scene/Input.h"
#include "widgets/ButtonEvents.h"

namespace ormala {

/// What the look of a button follows besides its design.
struct ButtonState {
    bool enabled = true;
    bool hover = false;
    /// Looks pressed, by mouse, key or value.
    bool pressed = false;
    bool focused = false;
    /// A toggle that is on.
    bool checked = false;

    bool operator==(const ButtonState&) const = default;
};

/// The window of a button, as the rules of the button need it.
class ButtonSurface {
  public:
    /// The look has changed.
    virtual void refresh() = 0;
    /// While on, `mouseIsElsewhere` is called soon after the mouse has left the button.
    virtual void watchMouse(bool on) = 0;
    virtual void captureMouse() = 0;

  protected:
    ~ButtonSurface() = default;
};

/// How a button behaves under mouse and keys. Hovering needs no mouse capture; a toggle never
/// changes its value by itself. Both references belong to the button and outlive this.
class ButtonModel {
  public:
    ButtonModel(ButtonEvents& events, ButtonSurface& surface)
        : events_(events), surface_(surface) {}

    [[nodiscard]] bool Enabled() const { return enabled_; }
    /// A press that is under way ends without a click.
    void setEnabled(bool enabled);
    [[nodiscard]] int ControlType() const { return controlType_; }
    /// 0 is a push button; 1 and 2 look pressed while `Value` is true.
    void setControlType(int type) { change(controlType_, type); }
    [[nodiscard]] bool Value() const { return value_; }
    void setValue(bool value) { change(value_, value); }
    [[nodiscard]] bool AlwaysUp() const { return alwaysUp_; }
    /// Never looks pressed, whatever mouse and value say.
    void setAlwaysUp(bool alwaysUp) { change(alwaysUp_, alwaysUp); }
    void resize(PixelSize size) { size_ = size; }

    [[nodiscard]] ButtonState state() const;
    /// A toggle that is on.
    [[nodiscard]] bool checked() const { return isToggle() && value_; }

    /// A press ends with the release of the mouse button that began it; others that come and go
    /// meanwhile are told and change nothing.
    void mouseDown(const MouseArguments& at);
    void mouseMove(const MouseArguments& at);
    void mouseUp(const MouseArguments& at);
    /// The second press of a double click.
    void doubleClick();
    void mouseIsElsewhere(int shift);
    /// The press ends without a click, since the mouse was taken away.
    void cancelPress();
    /// A press and its release, for programs that press buttons.
    void clickOnce();

    void keyDown(const KeyArguments& arguments);
    void keyUp(const KeyArguments& arguments);
    /// The access key of the caption; false if the button is disabled.
    bool pressAccessKey() const;

    void gainFocus();
    void loseFocus();

  private:
    [[nodiscard]] bool isToggle() const { return controlType_ == 1 || controlType_ == 2; }
    [[nodiscard]] bool isInside(const MouseArguments& at) const {
        return PixelRect{0, 0, size_.width, size_.height}.contains({at.x, at.y});
    }
    void setPressed(bool pressed);

    template <typename T>
    void change(T& member, T value) {
        if (member != value) {
            member = value;
            surface_.refresh();
        }
    }

    /// False if a handler destroyed the button.
    template <typename... Args>
    bool survives(const Event<Args...>& event, Args... args) {
        const std::weak_ptr<void> life = life_;
        event.raise(args...);
        return !life.expired();
    }

    ButtonEvents& events_;
    ButtonSurface& surface_;
    PixelSize size_;
    bool enabled_ = true;
    int controlType_ = 0;
    bool value_ = false;
    bool alwaysUp_ = false;

    bool hasFocus_ = false;
    bool pressed_ = false;
    /// Pressed, but shown up while the mouse is elsewhere.
    bool shownUp_ = false;
    bool hover_ = false;
    bool mouseIsDown_ = false;
    bool keyFlag_ = false;
    MouseArguments lastPress_;
    std::shared_ptr<void> life_ = std::make_shared<char>();
};

}  // namespace ormala
