// What the subsystems read from a company when it is opened (the invoice labels, for one). The
// hooks are installed by the program's entry points, so opening a company needs to know no
// subsystem above it.
#pragma once

#include "Result.h"

#include <functional>

using CompanyOpenedHook = std::function<Result()>;

// Hooks run in the order they were added; adding the same key again replaces the earlier hook.
void SetCompanyOpenedHook(const QString& key, CompanyOpenedHook hook);
// Runs every hook and stops at the first failure.
Result RunCompanyOpenedHooks();
