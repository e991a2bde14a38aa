#pragma once

#include <string>

#include "base/Event.h"
#include "modAPI/PixelRect.h"

namespace ormala {

/// Where the fixed parts of a slider stand, in its own pixels. With room for two rows the labels
/// stand above the track; else the caption stands in front of it, and the ends have no labels.
struct SliderLayout {
    PixelRect lblCaption;
    PixelRect lblMin;
    PixelRect lblMax;
    /// The track, as high as the handle.
    PixelRect imgBack;
    /// The line that marks it.
    PixelRect shpLine;
    PixelSize handle;
};

/// What a slider's layout depends on, in pixels.
struct SliderRoom {
    PixelSize size;
    int dpi = 96;
    int textHeight = 13;
    /// Of the longest caption.
    int captionWidth = 0;

    bool operator==(const SliderRoom&) const = default;
};

SliderLayout layoutSlider(const SliderRoom& room);

/// The core of a slider: its value and its handle, and what mouse and keys do to them.
class SliderModel {
  public:
    [[nodiscard]] int Min() const { return min_; }
    void setMin(int min);
    [[nodiscard]] int Max() const { return max_; }
    void setMax(int max);
    [[nodiscard]] float Value() const { return value_; }
    /// Stores the value within the range; raises no `Change`.
    void setValue(float value);
    /// Of one key press; its decimals are those of the caption.
    [[nodiscard]] float Step() const { return step_; }
    void setStep(float step);
    [[nodiscard]] const std::string& Caption() const { return caption_; }
    void setCaption(std::string caption);
    void setDecimalSeparator(std::string separator);

    /// The name and the value, and the value alone, as they are shown.
    [[nodiscard]] std::string captionText() const { return captionWith(value_); }
    [[nodiscard]] std::string captionWith(double value) const;
    [[nodiscard]] std::string valueText(double value) const;

    void arrange(const SliderRoom& room);
    [[nodiscard]] const SliderLayout& layout() const { return layout_; }
    /// The handle's place.
    [[nodiscard]] PixelRect imgSlide() const;

    void press(PixelPoint point);
    /// The mouse moves with the button held.
    void move(PixelPoint point);
    void release() { held_ = Held::none; }
    [[nodiscard]] bool isHeld() const { return held_ != Held::none; }
    /// Arrows go by a step, Page Up and Page Down by a tenth of the range, Home and End to an end.
    /// False if the key does nothing here.
    bool keyDown(int key);

    /// The user has changed the value, or has tried to go beyond an end with a key.
    Event<> Change;
    /// What is shown has changed.
    Event<> LookChange;

  private:
    enum class Held { none, handle, track };

    void MoveSlider(double x);
    void placeHandle();
    void setByUser(float value);
    [[nodiscard]] float page() const;
    [[nodiscard]] float clamped(float value) const;
    [[nodiscard]] double freeLength() const;
    [[nodiscard]] int decimals() const;

    int min_ = 0;
    int max_ = 100;
    float value_ = 20;
    float step_ = 1;
    std::string caption_ = "Caption";
    std::string separator_ = ".";
    SliderLayout layout_;
    /// The left end of the handle, which may lie between two pixels.
    double handleLeft_ = 0;
    Held held_ = Held::none;
    double leftAtPress_ = 0;
    int pressX_ = 0;
};

}  // namespace ormala
