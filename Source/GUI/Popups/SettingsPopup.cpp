#include "GUI/Popups/SettingsPopup.h"

#include "GUI/Editor/WindowSize.h"
#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Framework/AssetScheme/UserColours.h"
#include "GUI/Framework/Resources.h"
#include "Presets/AtomicFile.h"
#include "Presets/Folders.h"
#include "Synth/WavetableSynth/TableSources.h"

#include <algorithm>
#include <array>

namespace Zn::GUI
{
namespace
{
constexpr std::array windowPercents { 75, 100, 125, 150, 200, 250, 300 };

juce::File coloursFile()
{
    return Presets::Folders::user (AssetScheme::UserColours::fileName);
}

juce::String percentText (int percent)
{
    return juce::String (percent) + " %";
}

void showFolder (const juce::File& folder)
{
    folder.createDirectory();
    folder.revealToUser();
}

/** Somewhere to begin: the colours as they are. */
bool makeColoursFile()
{
    const auto file = coloursFile();
    file.getParentDirectory().createDirectory();
    return file.existsAsFile()
           || Presets::replaceFile (file,
                                    textOf (contentOf ("Colors.json")),
                                    Presets::Durability::canBeMadeAgain);
}

/** Outlives the pop-up, as a message does that offers it once more. */
void useOwnColours (EditorContext& context, bool shouldUse)
{
    if (shouldUse && ! makeColoursFile())
        return context.overlay.showMessage ("Nothing can be written to "
                                                + coloursFile().getParentDirectory().getFullPathName(),
                                            "Retry",
                                            [&context] { useOwnColours (context, true); });

    auto values = context.settings.get();
    values.ownColours = shouldUse;
    context.settings.set (values);
}

const Toggle::Options pill { .look = Toggle::Look::pill, .accent = "Text" };
} // namespace

SettingsPopup::SettingsPopup (EditorContext& contextToUse)
    : Popup (contextToUse, "SettingsPopup", "Settings")
    , form (contextToUse)
    , middleC (form.context, "SettingsMiddleC", number (&Values::middleC, { 3, 4 }, { "C3", "C4" }))
    , windowSize (form.context, "SettingsWindowSize", windowSizeParam())
    , colours (form.context, "SettingsColours", coloursParam())
    , tooltips (form.context, "SettingsTooltips", flag (&Values::tooltips), pill)
    , reducedMotion (form.context, "SettingsReducedMotion", flag (&Values::reducedMotion), pill)
    , playHead (
          form.context, "SettingsPlayHead", number (&Values::playHeadHertz, { 60, 30 }, { "60 Hz", "30 Hz" }))
    , follow (form.context, "SettingsFollow", flag (&Values::followsPlayingSlot), pill)
    , wheel (form.context, "SettingsWheel", flag (&Values::wheelTurnsKnobs), pill)
    , folders (form.context, "SettingsFolders", { .text = "Show" }, [this] { showFolders(); })
    , panic (form.context, "SettingsPanic", { .text = "Panic" }, [this] { context.state().panic(); })
    , rows { &middleC,  &windowSize, &colours, &tooltips, &reducedMotion,
             &playHead, &follow,     &wheel,   &folders,  &panic }
{
    addAndMakeVisible (list);

    for (auto* row : rows)
        list.addAndMakeVisible (row);
}

void SettingsPopup::paint (juce::Graphics& g)
{
    Popup::paint (g);
    paintHeading (g, list.getBounds().withY (list.getY() / 4).withHeight (list.getY() - list.getY() / 4));
}

//======================================================================================================================
SettingsPopup::List::List (SettingsPopup& popup)
    : Element (popup.context.canvas, "SettingsList"), owner (popup)
{}

void SettingsPopup::List::schemeChanged()
{
    font = owner.context.canvas.fontOf ("FontBody");
}

void SettingsPopup::List::paint (juce::Graphics& g)
{
    const auto& scheme = AssetScheme::Base::get();
    const auto pitch = owner.rows[1]->getY() - owner.rows[0]->getY();

    for (const auto* row : owner.rows)
    {
        g.setColour (scheme.colourOf ("Text"));
        g.setFont (font);
        g.drawText (row->getText().label,
                    juce::Rectangle<int> (0, row->getY(), row->getX(), row->getHeight()),
                    juce::Justification::centredLeft,
                    true);
        g.setColour (scheme.colourOf ("Hairline"));
        g.fillRect (0, row->getBottom() + (pitch - row->getHeight()) / 2, getWidth(), 1);
    }
}

//======================================================================================================================
std::shared_ptr<SettingParam> SettingsPopup::flag (bool Values::*field) const
{
    auto& settings = context.settings;

    return std::make_shared<SettingParam> (
        SettingParam::Options { .name = {},
                                .choices = { "Off", "On" },
                                .get = [&settings, field] { return settings.get().*field ? 1 : 0; },
                                .set =
                                    [&settings, field] (int index) {
                                        auto values = settings.get();
                                        values.*field = index == 1;
                                        settings.set (values);
                                    } });
}

std::shared_ptr<SettingParam>
SettingsPopup::number (int Values::*field, std::vector<int> numbers, juce::StringArray choices) const
{
    auto& settings = context.settings;
    const auto get = [&settings, field, numbers] {
        const auto found = std::find (numbers.begin(), numbers.end(), settings.get().*field);
        return found != numbers.end() ? static_cast<int> (found - numbers.begin()) : -1;
    };
    const auto set = [&settings, field, numbers] (int index) {
        auto values = settings.get();
        values.*field = numbers[static_cast<std::size_t> (index)];
        settings.set (values);
    };

    return std::make_shared<SettingParam> (
        SettingParam::Options { .name = {}, .choices = std::move (choices), .get = get, .set = set });
}

std::shared_ptr<SettingParam> SettingsPopup::windowSizeParam()
{
    const auto percent = [this] { return juce::roundToInt (100.0f * windowScaleOf (*this)); };
    juce::StringArray choices;

    for (const auto choice : windowPercents)
        choices.add (percentText (choice));

    const auto get = [percent] {
        const auto found = std::find (windowPercents.begin(), windowPercents.end(), percent());
        return found != windowPercents.end() ? static_cast<int> (found - windowPercents.begin()) : -1;
    };
    const auto set = [this] (int index) {
        setWindowScale (*this, float (windowPercents[static_cast<std::size_t> (index)]) / 100.0f);
    };

    return std::make_shared<SettingParam> (
        SettingParam::Options { .name = {},
                                .choices = choices,
                                .get = get,
                                .set = set,
                                .otherText = [percent] { return percentText (percent()); } });
}

//======================================================================================================================
std::shared_ptr<SettingParam> SettingsPopup::coloursParam() const
{
    std::vector<Parameters::MenuItems::Item> more;
    more.push_back ({}); // a separator
    more.push_back ({ .text = "Show the file", .action = [] { coloursFile().revealToUser(); } });
    more.push_back ({ .text = "Reset", .action = [this] { resetColours(); } });

    return std::make_shared<SettingParam> (
        SettingParam::Options { .name = {},
                                .choices = { "Built-in", "Your own" },
                                .get = [this] { return context.settings.get().ownColours ? 1 : 0; },
                                .set = [this] (int index) { useOwnColours (context, index == 1); },
                                .otherText = {},
                                .moreLines = std::move (more) });
}

void SettingsPopup::resetColours() const
{
    AssetScheme::UserColours (coloursFile()).reset();
    useOwnColours (context, false);
}

//======================================================================================================================
void SettingsPopup::showFolders()
{
    auto& state = context.state();
    Parameters::MenuItems::Item menu { .text = "Folders" };

    const auto add = [&menu] (const char* name, const juce::File& folder) {
        menu.subItems.push_back ({ .text = name, .action = [folder] { showFolder (folder); } });
    };

    add ("Presets", state.getUserFolder());
    add ("Sounds", state.synthPreset.getUserFolder());
    add ("Wavetables", Audio::WavetableSynth::userFolder());
    context.overlay.showMenu (menu, &folders);
}
} // namespace Zn::GUI
