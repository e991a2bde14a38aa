#include "pictures/outlines.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>

#include "modAPI/constants.h"

namespace ormala {

namespace {

constexpr int piecesOfCurve = 24;
constexpr double degreesOfPiece = 5;

Point turned(Point point, Turn turn) {
    const double side = GridFit::field;
    switch (turn) {
        case Turn::quarter:
            return {side - point.y, point.x};
        case Turn::half:
            return {side - point.x, side - point.y};
        case Turn::threeQuarters:
            return {point.y, side - point.x};
        case Turn::mirrored:
            return {side - point.x, point.y};
        case Turn::none:
            break;
    }
    return point;
}

/// One command in units of the field: the points it passes, and for a curve its control points.
struct Step {
    std::vector<Point> points;
    bool curved = false;
    bool straight = false;
};

class OutlineReader {
  public:
    OutlineReader(std::string_view path, Turn turn, const GridFit& fit)
        : rest_(path), turn_(turn), fit_(fit) {}

    std::vector<Contour> read() {
        for (char command = next(); command != '\0'; command = next()) {
            take(command);
        }
        finish(false);
        return std::move(contours_);
    }

  private:
    char next() {
        skipBlanks();
        if (rest_.empty()) {
            return '\0';
        }
        const char command = rest_.front();
        rest_.remove_prefix(1);
        return command;
    }

    void skipBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(' '), rest_.size())); }

    double number() {
        skipBlanks();
        double value = 0;
        const char* const end =
            std::from_chars(rest_.data(), rest_.data() + rest_.size(), value).ptr;
        rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
        return value;
    }

    Point point() {
        const double x = number();
        return turned({x, number()}, turn_);
    }

    void take(char command) {
        switch (command) {
            case 'M':
                finish(false);
                steps_.push_back({{point()}});
                break;
            case 'L':
                steps_.push_back({{point()}, false, true});
                break;
            case 'C':
                takeCurve();
                break;
            case 'A':
                takeArc();
                break;
            case 'R':
                takeRectangle();
                break;
            case 'Z':
                finish(true);
                break;
            case 'O':
            case 'o':
                takeCircle(command == 'O');
                break;
            default:
                break;
        }
    }

    void takeCurve() {
        const Point first = point();
        const Point second = point();
        steps_.push_back({{first, second, point()}, true});
    }

    void takeRectangle() {
        finish(false);
        const double left = number();
        const double top = number();
        const double right = number();
        const double bottom = number();
        steps_.push_back({{turned({left, top}, turn_)}});
        for (const Point corner : {Point{right, top}, Point{right, bottom}, Point{left, bottom}}) {
            steps_.push_back({{turned(corner, turn_)}, false, true});
        }
        finish(true);
    }

    void takeArc() {
        const double x = number();
        const double y = number();
        const double radius = number();
        const double from = number();
        const double sweep = number();
        const int pieces = std::max(1, static_cast<int>(std::abs(sweep) / degreesOfPiece));
        for (int piece = 0; piece <= pieces; ++piece) {
            const double angle = (from + sweep * piece / pieces) * pi / 180;
            const Point place{x + radius * std::cos(angle), y + radius * std::sin(angle)};
            steps_.push_back({{turned(place, turn_)}});
        }
    }

    void takeCircle(bool closed) {
        finish(false);
        const Point place = point();
        const double radius = number();
        const Point middle = fit_.fittedMiddle(place, radius);
        const double pixels = fit_.fittedRadius(radius);
        contours_.push_back({circle(middle, pixels), closed});
        if (!closed) {
            contours_.back().points.push_back(contours_.back().points.front());
        }
    }

    static std::vector<Point> circle(Point middle, double radius) {
        constexpr int corners = 64;
        std::vector<Point> points;
        for (int corner = 0; corner < corners; ++corner) {
            const double angle = twoPi * corner / corners;
            points.push_back(
                {middle.x + radius * std::cos(angle), middle.y + radius * std::sin(angle)});
        }
        return points;
    }

    /// Ends a contour: lines that are level or upright are fitted, and all else that lies on them.
    void finish(bool closed) {
        if (steps_.empty()) {
            return;
        }
        findFitted(closed);
        Contour contour;
        contour.closed = closed;
        for (const Step& step : steps_) {
            addStep(contour.points, step);
        }
        contours_.push_back(std::move(contour));
        steps_.clear();
    }

    void findFitted(bool closed) {
        fittedX_.clear();
        fittedY_.clear();
        for (std::size_t i = 1; i < steps_.size(); ++i) {
            if (steps_[i].straight) {
                fitLine(steps_[i - 1].points.back(), steps_[i].points.back());
            }
        }
        if (closed) {
            fitLine(steps_.back().points.back(), steps_.front().points.back());
        }
    }

    void fitLine(Point from, Point to) {
        if (from.x == to.x || from.y == to.y) {
            fittedX_.insert(fittedX_.end(), {from.x, to.x});
            fittedY_.insert(fittedY_.end(), {from.y, to.y});
        }
    }

    [[nodiscard]] double placed(double coordinate, const std::vector<double>& fitted) const {
        return std::ranges::find(fitted, coordinate) != fitted.end() ? fit_.fitted(coordinate)
                                                                     : fit_.plain(coordinate);
    }

    [[nodiscard]] Point placed(Point point) const {
        return {placed(point.x, fittedX_), placed(point.y, fittedY_)};
    }

    void addStep(std::vector<Point>& points, const Step& step) const {
        if (!step.curved) {
            points.push_back(placed(step.points.front()));
            return;
        }
        const Point start = points.back();
        const Point a = placed(step.points[0]);
        const Point b = placed(step.points[1]);
        const Point end = placed(step.points[2]);
        for (int piece = 1; piece <= piecesOfCurve; ++piece) {
            const double t = static_cast<double>(piece) / piecesOfCurve;
            const double u = 1 - t;
            const auto mix = [&](double p, double q, double r, double s) {
                return u * u * u * p + 3 * u * u * t * q + 3 * u * t * t * r + t * t * t * s;
            };
            points.push_back({mix(start.x, a.x, b.x, end.x), mix(start.y, a.y, b.y, end.y)});
        }
    }

    std::string_view rest_;
    Turn turn_;
    const GridFit& fit_;
    std::vector<Step> steps_;
    std::vector<double> fittedX_;
    std::vector<double> fittedY_;
    std::vector<Contour> contours_;
};

}  // namespace

std::vector<Contour> readOutlines(std::string_view path, Turn turn, const GridFit& fit) {
    return OutlineReader(path, turn, fit).read();
}

}  // namespace ormala
