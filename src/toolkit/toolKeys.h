#pragma once

#include <string>
#include <string_view>

#include "storage/INIFile.h"

// The keys of a tool in the current section of a tool-settings file.

namespace ormala {

/// A text that stands for no finite number reads as 0.
double finiteValue(INIFile& file, std::string_view key, double defaultValue);

/// Any value but 0 is true.
bool flagValue(INIFile& file, std::string_view key, bool defaultValue);

/// Visits the keys of a tool in the order of the file. False ends the walk.
class ToolKeys {
  public:
    virtual ~ToolKeys() = default;

    /// A coordinate or an angle; numbers of the same 15 digits are equal.
    virtual bool number(std::string_view key, double value) = 0;
    /// Equal only to the last bit.
    virtual bool factor(std::string_view key, double value) = 0;
    virtual bool integer(std::string_view key, int value) = 0;
    virtual bool flag(std::string_view key, bool value) = 0;
    virtual bool text(std::string_view key, const std::string& value) = 0;
};

/// Writes every key.
class ToolKeyWriter : public ToolKeys {
  public:
    explicit ToolKeyWriter(INIFile& file) : file_(file) {}

    bool number(std::string_view key, double value) override;
    bool factor(std::string_view key, double value) override;
    bool integer(std::string_view key, int value) override;
    bool flag(std::string_view key, bool value) override;
    bool text(std::string_view key, const std::string& value) override;

  private:
    INIFile& file_;
};

/// Puts all keys and values into one text.
class ToolKeyText : public ToolKeys {
  public:
    [[nodiscard]] const std::string& text() const { return text_; }

    bool number(std::string_view key, double value) override;
    bool factor(std::string_view key, double value) override;
    bool integer(std::string_view key, int value) override;
    bool flag(std::string_view key, bool value) override;
    bool text(std::string_view key, const std::string& value) override;

  private:
    std::string text_;
};

/// Compares every key, a missing one as 0 or as an empty text, until one differs.
class ToolKeyComparer : public ToolKeys {
  public:
    explicit ToolKeyComparer(INIFile& file) : file_(file) {}

    bool number(std::string_view key, double value) override;
    bool factor(std::string_view key, double value) override;
    bool integer(std::string_view key, int value) override;
    bool flag(std::string_view key, bool value) override;
    bool text(std::string_view key, const std::string& value) override;

  private:
    INIFile& file_;
};

}  // namespace ormala
