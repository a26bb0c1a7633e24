#include "GUI/Widgets/UserSettings.h"

namespace Zn::GUI
{
UserSettings::UserSettings (const juce::File& fileToUse) : file (fileToUse) {}

juce::File UserSettings::defaultFile()
{
    return juce::File::getSpecialLocation (juce::File::userApplicationDataDirectory)
        .getChildFile ("Brenvik/Vornel/settings.json");
}

void UserSettings::set (const Values& newValues)
{
    if (values == newValues)
        return;

    values = newValues;
    callListeners();
}
} // namespace Zn::GUI
