#pragma once

#include <string_view>

namespace Zn::GUI
{
/** The colours of the scheme for what is chosen in a browser, and for the ground behind it. */
struct BrowserColours
{
    std::string_view accent, wash;
};
} // namespace Zn::GUI
