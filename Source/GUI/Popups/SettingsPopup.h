#pragma once

#include "GUI/Popups/SettingParam.h"
#include "GUI/Widgets/Button.h"
#include "GUI/Widgets/Choice.h"
#include "GUI/Widgets/FormContext.h"
#include "GUI/Widgets/Popup.h"
#include "GUI/Widgets/Segments.h"
#include "GUI/Widgets/Toggle.h"

#include <vector>

namespace Zn::GUI
{
/** What a user wants of every editor, the size of this one, and what has no place on the page. Thread: message. */
class SettingsPopup : public Popup
{
public:
    explicit SettingsPopup (EditorContext& contextToUse);

    void paint (juce::Graphics& g) override;

private:
    /** The rows' own ground, so that the scheme finds their places. */
    struct List : AssetScheme::Element<>
    {
        explicit List (SettingsPopup& popup);
        void paint (juce::Graphics& g) override;
        void schemeChanged() override;

        SettingsPopup& owner;
        juce::Font font;
    };

    using Values = UserSettings::Values;

    /** A field of the settings as on or off. */
    std::shared_ptr<SettingParam> flag (bool Values::*field) const;

    /** A field of the settings as one of a few numbers. */
    std::shared_ptr<SettingParam>
    number (int Values::*field, std::vector<int> numbers, juce::StringArray choices) const;

    std::shared_ptr<SettingParam> windowSizeParam();
    std::shared_ptr<SettingParam> coloursParam() const;
    void resetColours() const;
    void showFolders();

    FormContext form;

    List list { *this };
    Segments middleC;
    Choice windowSize, colours;
    Toggle tooltips, reducedMotion;
    Choice playHead;
    Toggle follow, wheel;
    Button folders, panic;
    const std::vector<Control*> rows;
};
} // namespace Zn::GUI
