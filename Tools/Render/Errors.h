#pragma once

#include "Support/Errors.h"

namespace Zn::Render
{
using Tools::ArgumentError;
using Tools::FileError;
} // namespace Zn::Render
