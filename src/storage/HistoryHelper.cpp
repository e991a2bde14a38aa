#include "storage/HistoryHelper.h"

namespace ormala {

bool HistoryHelper::UndoPossible() const {
    if (newest_ > oldest_) {
        return current_ > oldest_;
    }
    return newest_ < oldest_ && (current_ > oldest_ || current_ <= newest_);
}

void HistoryHelper::Undo() {
    if (UndoPossible()) {
        current_ = before(current_);
        slots_.LoadFromHistory(current_);
    }
}

void HistoryHelper::Redo() {
    if (RedoPossible()) {
        current_ = after(current_);
        slots_.LoadFromHistory(current_);
    }
}

bool HistoryHelper::Add(bool initial) {
    if (initial) {
        slots_.StoreToHistory(0);
        return true;
    }
    if (!slots_.CompareWithHistory(current_)) {
        return false;
    }
    current_ = after(current_);
    newest_ = current_;
    if (oldest_ == current_) {
        oldest_ = after(oldest_);
    }
    slots_.StoreToHistory(current_);
    return true;
}

}  // namespace ormala
