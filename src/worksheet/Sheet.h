#pragma once

#include <array>
#include <memory>
#include <optional>
#include <vector>

#include "base/Event.h"
#include "scene/ToolControl.h"

namespace ormala {

/// What the sheet asks of the window that shows it.
class SheetPort {
  public:
    virtual ~SheetPort() = default;

    /// Whether the worksheet is the window that was last known to be in front.
    [[nodiscard]] virtual bool wasInFront() const = 0;
    /// Keeps the window that is in front now.
    virtual void rememberForeground() = 0;
    /// The tool's place among the others, its presence or its visibility has changed.
    virtual void repaintTool(const OverlayItem& item) = 0;
};

/// Makes the tools: the sheet knows no kind of them.
class ToolFactory {
  public:
    virtual ~ToolFactory() = default;
    /// Null for a kind that there is no tool of.
    virtual std::unique_ptr<OverlayItem> makeTool(ToolKind kind, ToolHost& host) = 0;
};

/// The tools on the worksheet: an array for each kind whose element 0 always exists, their order in
/// front of each other, the selection and the focus. It knows no kind of tool by its type.
class Sheet {
  public:
    static constexpr int kinds = 2;

    Sheet(SheetPort& port, ToolHost& host, ToolFactory& factory)
        : port_(port), host_(host), factory_(factory) {}

    /// Makes element 0 of an array, hidden.
    void makeFirstControl(ToolKind kind);
    /// A further tool behind the last one of its kind, visible, in front of all others; null for an
    /// unknown kind.
    OverlayItem* AddNewControl(int kind);
    /// The same, with changes under way from its making, which `changes` then ends.
    OverlayItem* AddNewControl(int kind, std::optional<ToolChanges>& changes);
    /// Destroys it.
    void RemoveControl(const OverlayItem& item);
    /// Hides it and takes it out of use: it keeps its place among the others, and counts no more.
    void putAside(const OverlayItem& item);
    /// One that has been put aside is in use again.
    void takeBack(const OverlayItem& item, bool visible);
    /// Element 0 of that kind, null for another kind.
    [[nodiscard]] OverlayItem* GetFirstControl(int kind) const;

    void setVisible(const OverlayItem& item, bool visible);
    [[nodiscard]] bool isVisible(const OverlayItem& item) const;
    /// All visible tools, kind by kind, each kind in its array's order.
    [[nodiscard]] std::vector<OverlayItem*> visibleInArrayOrder() const;

    /// A visible tool by its names.
    struct Shown {
        OverlayItem* item;
        /// No other tool of the program ever has it.
        int id;
        /// Among those of its kind that are in use, hidden ones too, from 1.
        int ordinal;
    };
    /// In the same order.
    [[nodiscard]] std::vector<Shown> shown() const;

    void SelectControl(const OverlayItem& item);
    [[nodiscard]] OverlayItem* selected() const;
    void SetFocusToSelectedControl();
    /// The same if the keyboard is the worksheet's, and no tool has it.
    void giveFreeFocusToSelectedControl();
    void RemoveFocusFromOtherControls(const OverlayItem& item);

    /// The user's change of focus to a tool, by a press or a key. A hidden tool does not take it.
    void giveFocus(OverlayItem& item);
    /// The next visible tool in the order of the arrays, in a ring.
    void focusNext(bool backwards);
    /// The window got or lost the focus; it keeps which tool had it.
    void windowGotFocus();
    void windowLostFocus();
    /// Meanwhile the tools learn of neither; at the end they learn who has it then.
    void setFocusHeld(bool held, bool windowHasFocus);
    [[nodiscard]] OverlayItem* focused() const { return focused_; }
    /// The tool that commands of the keyboard mean: the one with the focus while the window has it,
    /// else the selected one; null without one.
    [[nodiscard]] OverlayItem* toolOfKeys() const { return windowFocused_ ? focused_ : selected(); }
    /// The tool that the keys go to at this moment; null without one.
    [[nodiscard]] OverlayItem* toolWithKeyboard() const {
        return windowFocused_ ? focused_ : nullptr;
    }

    /// Tells every tool whether the worksheet takes the mouse.
    void setEditMode(bool editMode);
    [[nodiscard]] bool EditMode() const { return editMode_; }
    void resize(PixelSize size);
    [[nodiscard]] PixelSize size() const { return size_; }

    /// All tools from the rearmost to the foremost, visible or not.
    [[nodiscard]] const std::vector<OverlayItem*>& zOrder() const { return zOrder_; }
    /// The foremost visible tool, null without any.
    [[nodiscard]] OverlayItem* front() const;

    /// A tool is hidden from now on, and perhaps destroyed next: it must hold nothing any more.
    Event<const OverlayItem&> withdrawn;

  private:
    struct Element {
        std::unique_ptr<OverlayItem> item;
        bool visible = false;
        int id = 0;
        /// Not so: element 0 before it is first shown, and what has been put aside.
        bool inUse = false;
    };
    using Elements = std::vector<Element>;

    OverlayItem* add(ToolKind kind, bool visible, std::optional<ToolChanges>& changes);
    [[nodiscard]] Elements& elements(ToolKind kind);
    [[nodiscard]] Element* find(const OverlayItem& item);
    [[nodiscard]] const Element* find(const OverlayItem& item) const;
    void focusArrives(OverlayItem& item);
    void setVisible(Element& element, bool visible);
    void withdraw(const OverlayItem& item);
    /// Another tool may have become the foremost one.
    void frontMayDifferFrom(const OverlayItem* former);

    SheetPort& port_;
    ToolHost& host_;
    ToolFactory& factory_;
    std::array<Elements, kinds> arrays_;
    std::vector<OverlayItem*> zOrder_;
    OverlayItem* focused_ = nullptr;
    int lastId_ = 0;
    bool editMode_ = false;
    bool windowFocused_ = false;
    bool focusHeld_ = false;
    PixelSize size_;
};

}  // namespace ormala
