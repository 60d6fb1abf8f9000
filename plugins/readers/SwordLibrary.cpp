#include "readers/SwordLibrary.h"

#include <localemgr.h>
#include <swlog.h>

namespace {

class SilentLog final : public sword::SWLog {
public:
    void logMessage(const char*, int) const override {}
};

// NOLINTBEGIN(clang-analyzer-cplusplus.NewDeleteLeaks): the library deletes both
bool isolate() {
    sword::SWLog::setSystemLog(new SilentLog);
    sword::LocaleMgr::setSystemLocaleMgr(new sword::LocaleMgr(""));
    return true;
}
// NOLINTEND(clang-analyzer-cplusplus.NewDeleteLeaks)

} // namespace

void isolateSwordLibrary() {
    [[maybe_unused]] static const bool isolated = isolate();
}
