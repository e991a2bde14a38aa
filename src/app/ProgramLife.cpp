#include "app/ProgramLife.h"

#include <utility>

namespace ormala {

bool ProgramLife::started() {
    if (phase_ == Phase::loading) {
        phase_ = Phase::running;
    }
    return running();
}

/// The question has a message loop of its own, in which all of this can be called again.
bool ProgramLife::ask() {
    asking_ = true;
    const bool confirmed = ending_.ConfirmDiscard();
    asking_ = false;
    return confirmed && running();
}

void ProgramLife::close() {
    if (phase_ == Phase::loading) {
        phase_ = Phase::abandoned;
        ending_.quit();
        return;
    }
    if (!running() || asking_ || ending_.isBusy() || !ask()) {
        return;
    }
    phase_ = Phase::ended;
    ending_.save();
    ending_.quit();
}

bool ProgramLife::queryEndOfSession(bool critical) {
    if (!running()) {
        return true;
    }
    ending_.keep(true);
    announced_ = true;
    if (critical) {
        return true;
    }
    const bool busy = asking_ || ending_.isBusy();
    ending_.showReason(busy);
    // The reason of a refusal stays until the system says what became of the session.
    const bool mayEnd = !busy && ask();
    if (mayEnd) {
        ending_.hideReason();
    }
    return mayEnd;
}

void ProgramLife::endOfSession(bool ending, bool mustClose) {
    if (!running()) {
        return;
    }
    ending_.hideReason();
    const bool told = std::exchange(announced_, false);
    if (ending) {
        // Also after the announcement: the user may have gone on meanwhile.
        ending_.keep(!told);
    }
    if (ending && mustClose) {
        phase_ = Phase::ended;
        ending_.quit();
    }
}

void ProgramLife::fail() {
    if (running()) {
        phase_ = Phase::ended;
        ending_.keep(true);
    }
}

}  // namespace ormala
