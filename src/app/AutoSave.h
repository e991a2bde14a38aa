#pragma once

#include <algorithm>
#include <functional>

namespace ormala {

/// What is saved while the program runs, and what it stands on. `AutoSave` says when.
class AutoSavePort {
  public:
    virtual ~AutoSavePort() = default;

    /// Whether something is other than in the files.
    [[nodiscard]] virtual bool differs() = 0;
    /// Writes what differs; false if some of it could not be written.
    virtual bool saveChanges() = 0;
    /// Whether what there is is not whole: a set of tools is just being loaded.
    [[nodiscard]] virtual bool isHalfDone() const = 0;
    [[nodiscard]] virtual bool isMouseHeld() const = 0;
    /// Calls `tick` once after that time, 0 for never.
    virtual void runTimer(unsigned milliseconds) = 0;
    /// Calls it once the present event is over.
    virtual void later(std::function<void()> call) = 0;
    virtual void tellFailure() = 0;
};

/// Has the tools and the options written soon after each change, so that whatever ends the program
/// loses no more than three seconds. There is no timer while there is nothing to write.
class AutoSave {
  public:
    /// From the first change that is not written; with the time of writing it is three seconds.
    static constexpr unsigned delay = 2800;
    /// How often a mouse button that is held meanwhile is looked for.
    static constexpr unsigned interval = 100;
    /// After failures the delay doubles up to this.
    static constexpr unsigned longestDelay = 60000;

    /// The port must outlive the object.
    explicit AutoSave(AutoSavePort& port) : port_(port) {}

    /// The start is over, and the files hold what there is. Before, nothing is written.
    void begin() { running_ = true; }
    /// Something may have changed.
    void changed();
    void tick();
    /// At once: the user turns away, or the program may not come to write later.
    void saveNow();

  private:
    void look();
    void save();

    AutoSavePort& port_;
    unsigned delay_ = delay;
    bool running_ = false;
    bool looks_ = false;
    bool waits_ = false;
    bool told_ = false;
};

}  // namespace ormala
