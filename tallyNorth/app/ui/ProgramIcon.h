// The program's icon: an invoice sheet, drawn so that it needs no image files.
#pragma once

#include <QIcon>

QIcon ProgramIcon();
