#pragma once

namespace ormala {

class INIFile;

/// What the application core says to any panel, whatever the kind of its tool.
class SettingControl {
  public:
    virtual ~SettingControl() = default;

    /// Whether the panel's tool is the selected one; the panel has no selection of its own.
    [[nodiscard]] virtual bool Selected() const = 0;
    virtual void setSelected(bool selected) = 0;

    /// The pair of panel and tool is not in use; every walk over the panels skips it.
    [[nodiscard]] virtual bool Hidden() const = 0;
    virtual void setHidden(bool hidden) = 0;

    /// Reads, writes and compares the tool's keys in the file's current section. `EqualsFile` is
    /// true if every key has the value that the tool has.
    virtual void LoadFromFile(INIFile& file) = 0;
    virtual void StoreToFile(INIFile& file) const = 0;
    [[nodiscard]] virtual bool EqualsFile(INIFile& file) const = 0;
};

}  // namespace ormala
