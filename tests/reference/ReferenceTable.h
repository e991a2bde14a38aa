#pragma once

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

namespace ormala {

/// A table beside this file, made by make_reference.py; without its header line.
class ReferenceTable {
  public:
    using Row = std::vector<std::string>;

    explicit ReferenceTable(const std::string& name) {
        std::ifstream file(std::string(ORMALA_SOURCE_DIR) + "/tests/reference/" + name);
        std::string line;
        std::getline(file, line);
        while (std::getline(file, line)) {
            rows_.push_back(fieldsOf(line));
        }
    }

    const std::vector<Row>& rows() const { return rows_; }

    static double number(const std::string& field) { return std::strtod(field.c_str(), nullptr); }

    static int whole(const std::string& field) { return static_cast<int>(number(field)); }

    static std::vector<double> numbers(const Row& row) {
        std::vector<double> values(row.size());
        std::ranges::transform(row, values.begin(), number);
        return values;
    }

  private:
    static Row fieldsOf(const std::string& line) {
        Row fields(1);
        for (const char c : line) {
            if (c == ',') {
                fields.emplace_back();
            } else {
                fields.back() += c;
            }
        }
        return fields;
    }

    std::vector<Row> rows_;
};

/// Equal to nine digits of the result, or of what it was computed from where that is larger.
inline bool agrees(double value, double expected, double scale = 0) {
    return std::abs(value - expected) <= 1e-9 * std::max(std::abs(expected), std::abs(scale));
}

}  // namespace ormala
