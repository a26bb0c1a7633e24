#pragma once

#include "Parameters/ParamHolder.h"
#include "Parameters/Parameter.h"

#include <memory>

namespace Zn::Parameters
{
/** What a widget holds of a parameter of the tree: it sets the parameter itself, its gestures go to the
    parameter that the host knows it by.
*/
std::unique_ptr<Parameter> createForwarder (Audio::ParamHolderBase& holder);
} // namespace Zn::Parameters
