#include "platform/win/OwnQuestion.h"

#include <mutex>
#include <set>

namespace ormala {

namespace {

/// Questions are asked on any thread.
struct Questions {
    std::mutex mutex;
    std::multiset<const void*> open;
};

Questions& questions() {
    static Questions all;
    return all;
}

}  // namespace

OwnQuestion::OwnQuestion(const void* asked) : asked_(asked) {
    const std::lock_guard lock(questions().mutex);
    questions().open.insert(asked_);
}

OwnQuestion::~OwnQuestion() {
    const std::lock_guard lock(questions().mutex);
    questions().open.extract(asked_);
}

bool OwnQuestion::isForged(UINT message, LPARAM lParam) {
    if (message != accessibleFactsMessage && message != accessiblePartsMessage) {
        return false;
    }
    const std::lock_guard lock(questions().mutex);
    return !questions().open.contains(reinterpret_cast<const void*>(lParam));
}

}  // namespace ormala
