#include "GUI/Widgets/LabelFit.h"

#include <algorithm>

namespace Zn::GUI
{
void fitLabels (std::initializer_list<ShortensLabel*> labels)
{
    const auto fits = [] (const ShortensLabel* label) { return label->labelFits(); };
    const auto allFit = std::all_of (labels.begin(), labels.end(), fits);

    for (auto* label : labels)
        label->setShortLabel (! allFit);
}
} // namespace Zn::GUI
