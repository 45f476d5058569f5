#include "CompanyHooks.h"

#include <QList>

#include <utility>

namespace {

QList<std::pair<QString, CompanyOpenedHook>>& Hooks()
{
    static QList<std::pair<QString, CompanyOpenedHook>> hooks;
    return hooks;
}

} // namespace

void SetCompanyOpenedHook(const QString& key, CompanyOpenedHook hook)
{
    for (auto& [k, h] : Hooks()) {
        if (k == key) {
            h = std::move(hook);
            return;
        }
    }
    Hooks().append({key, std::move(hook)});
}

Result RunCompanyOpenedHooks()
{
    for (const auto& [key, hook] : std::as_const(Hooks())) {
        if (const Result r = hook(); !r)
            return r;
    }
    return Result::success();
}
