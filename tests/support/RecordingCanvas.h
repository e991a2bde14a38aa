#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "scene/Canvas.h"

namespace ormala {

/// Keeps what was drawn, in order.
class RecordingCanvas : public Canvas {
  public:
    enum class Kind { line, polyline, bezier, shape, text };

    struct Call {
        Kind kind = Kind::line;
        Pen pen;
        std::vector<PixelPoint> points;
        ShapeFace shape;
        PixelRect box;
        std::string text;
        Color textColor = 0;
        Alignment alignment = Alignment::left;
    };

    explicit RecordingCanvas(const PixelRect& visible = {0, 0, 1000, 800}) : visible_(visible) {}

    std::vector<Call> calls;

    [[nodiscard]] PixelRect visible() const override { return visible_; }

    void line(const Pen& pen, PixelPoint from, PixelPoint to) override {
        addStroke(Kind::line, pen, std::vector{from, to});
    }
    void polyline(const Pen& pen, std::span<const PixelPoint> points) override {
        addStroke(Kind::polyline, pen, points);
    }
    void bezier(const Pen& pen, std::span<const PixelPoint> points) override {
        addStroke(Kind::bezier, pen, points);
    }
    void shape(const ShapeFace& face) override {
        Call call;
        call.kind = Kind::shape;
        call.shape = face;
        call.box = face.box;
        calls.push_back(call);
    }
    void text(const PixelRect& box, const TextFace& face) override {
        Call call;
        call.kind = Kind::text;
        call.box = box;
        call.text = face.text;
        call.textColor = face.color;
        call.alignment = face.alignment;
        calls.push_back(call);
    }

    [[nodiscard]] std::vector<Call> ofKind(Kind kind) const {
        std::vector<Call> found;
        std::ranges::copy_if(calls, std::back_inserter(found),
                             [&](const Call& call) { return call.kind == kind; });
        return found;
    }
    [[nodiscard]] int count(Kind kind) const { return static_cast<int>(ofKind(kind).size()); }

    /// The largest distance from 0 among all coordinates that were drawn to.
    [[nodiscard]] int farthest() const {
        int far = 0;
        for (const Call& call : calls) {
            for (const PixelPoint& p : call.points) {
                far = std::max({far, std::abs(p.x), std::abs(p.y)});
            }
            far = std::max({far, std::abs(call.box.left), std::abs(call.box.top),
                            std::abs(call.box.right), std::abs(call.box.bottom)});
        }
        return far;
    }

  private:
    void addStroke(Kind kind, const Pen& pen, std::span<const PixelPoint> points) {
        Call call;
        call.kind = kind;
        call.pen = pen;
        call.points.assign(points.begin(), points.end());
        calls.push_back(call);
    }

    PixelRect visible_;
};

}  // namespace ormala
