// Whole-file copies and moves for company files: a failure never leaves half a file behind.
#pragma once

#include <QString>

// Copies source to target through a temporary file that replaces target only when complete, so a
// failed copy leaves an earlier target as it was. Copying a file onto itself fails.
bool CopyReplacing(const QString& source, const QString& target);

// Moves from to to, replacing an earlier to.
bool MoveReplacing(const QString& from, const QString& to);
