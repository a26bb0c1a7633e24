#pragma once

namespace Zn::Fuzz
{
/** Starts JUCE, with a home folder of its own for whatever is written, and keeps the singletons until the end. */
void startJuce();
} // namespace Zn::Fuzz
