#pragma once

#include <initializer_list>

namespace Zn::GUI
{
/** Something with a label that has a short form. */
class ShortensLabel
{
public:
    virtual ~ShortensLabel() = default;

    /** Whether the full form has room where the scheme puts it. */
    virtual bool labelFits() const = 0;

    virtual void setShortLabel (bool shouldBeShort) = 0;
};

/** For a card, in its schemeChanged(): when one label does not fit, all of them take their short form. */
void fitLabels (std::initializer_list<ShortensLabel*> labels);
} // namespace Zn::GUI
