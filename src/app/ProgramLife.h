#pragma once

namespace ormala {

/// What the ending of the program does. `ProgramLife` says when.
class ProgramEnding {
  public:
    virtual ~ProgramEnding() = default;

    /// A dialog that has to be answered first is open, or a screen shot is being taken.
    [[nodiscard]] virtual bool isBusy() const = 0;
    /// Whether the document's changes are saved or may be lost, perhaps after a question.
    virtual bool ConfirmDiscard() = 0;
    /// Saves the tools of the run and the options, and the run goes on. `tell` says whether the
    /// user hears of a failure.
    virtual void keep(bool tell) = 0;
    /// The same for the last time: the open document is left.
    virtual void save() = 0;
    /// Tells the system why its session can't end now.
    virtual void showReason(bool busy) = 0;
    virtual void hideReason() = 0;
    /// Ends the message loops.
    virtual void quit() = 0;
};

/// The one life of the program: loading, running, ended. A close can come at any moment, also while
/// a message of the start or a question of the ending waits for its answer.
class ProgramLife {
  public:
    /// The ending must outlive the object.
    explicit ProgramLife(ProgramEnding& ending) : ending_(ending) {}

    /// The start is over: false if the program was told to end meanwhile.
    bool started();
    /// Told to end before the start was over. Nothing is saved then: the files hold what the last
    /// run left, and the windows may hold a part of it only.
    [[nodiscard]] bool abandoned() const { return phase_ == Phase::abandoned; }
    [[nodiscard]] bool running() const { return phase_ == Phase::running; }

    /// The user or another program closes the program.
    void close();

    /// Whether the session of the system may end. What there is is saved first. `critical` says
    /// that it ends in any case.
    bool queryEndOfSession(bool critical);
    /// The answer of all programs. One that lives on although the session ends goes on as before;
    /// `mustClose` says that it has to end itself, to be replaced or to free what it holds, and
    /// then nothing is asked.
    void endOfSession(bool ending, bool mustClose);

    /// A failure that nobody has handled: saves what can be saved. Throws what the saving throws.
    void fail();

  private:
    enum class Phase { loading, abandoned, running, ended };

    bool ask();

    ProgramEnding& ending_;
    Phase phase_ = Phase::loading;
    bool asking_ = false;
    /// The end of the session has been announced, and a failure of saving for it has been told.
    bool announced_ = false;
};

}  // namespace ormala
