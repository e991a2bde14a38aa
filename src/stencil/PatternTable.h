#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "modAPI/points.h"

namespace ormala {

/// Centre and half axes, in the unit square.
struct PatternEllipse {
    double cx = 0;
    double cy = 0;
    double rx = 0;
    double ry = 0;

    bool operator==(const PatternEllipse&) const = default;
};

/// The headings under which the patterns are shown. The values are the text order of the dialog.
enum class PatternGroup : std::int32_t { goldenSection = 0, wholeNumbers = 1, other = 2 };

/// A pattern of proportion lines in a unit square: (0,0) is the rectangle's top left, (1,1) its
/// bottom right. `Lines` and `Ellipses` stand in drawing order.
struct PatternRecord {
    std::vector<Line> Lines;
    std::vector<PatternEllipse> Ellipses;

    /// The English name and the id of its translation in the string table.
    std::string_view Name;
    int NameTextId = 0;

    /// What a file holds, from 1 on; never an index.
    std::int32_t Id = 0;

    PatternGroup Group = PatternGroup::goldenSection;

    /// Height to width of a new stencil whose first pattern this is.
    double DefaultRatio = 1;

    /// The segments form one running curve.
    bool Polyline = false;
};

/// The catalogue of the patterns, complete and constant from its first use on. An index into it is
/// what a stencil holds at run time.
class PatternTable {
  public:
    static const PatternTable& instance();
    static int count() { return static_cast<int>(instance().records_.size()); }

    /// The index is 0 to `count() - 1`.
    const PatternRecord& operator[](int index) const;

    std::span<const PatternRecord> records() const { return records_; }

  private:
    PatternTable();

    std::vector<PatternRecord> records_;
};

/// -1 if no pattern has the id.
int PatternIndexFromId(std::int32_t id);

/// -1 for an index outside the table.
std::int32_t PatternIdFromIndex(int index);

/// Names the first two records of equal id; empty if all ids differ.
std::string duplicateIdMessage(std::span<const PatternRecord> records);

/// The angles offered for `PatternSetting::PreRotation`, in the order of the choice: none, 1/8,
/// 1/4, 1/3, 3/8, 1/2, 5/8, 2/3, 3/4, 7/8, 1/20, 2/20 and 3/20 of a turn, each cut to a millionth
/// of it.
std::array<double, 13> preRotations();

}  // namespace ormala
