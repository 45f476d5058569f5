// The product list: the "Products" tab of the main window and the list for choosing.
#pragma once

#include "BrowseInfo.h"

const BrowseInfo& ProductBrowseInfo();
