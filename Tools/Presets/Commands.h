#pragma once

#include "Support/Arguments.h"

namespace Zn::PresetTool
{
using Tools::Arguments;

// Each prints its results and returns an exit status: 0 done, 1 not so for one of the files. Throws Refused or
// std::exception, whose text names the file.

int validate (const Arguments& arguments);
int list (const Arguments& arguments); // switch: paths only
int show (const Arguments& arguments);
int diff (const Arguments& arguments);    // two files
int rewrite (const Arguments& arguments); // switch: only tell what would change
} // namespace Zn::PresetTool
