#include "GUI/Popups/AboutPopup.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Pattern/Clipboard.h"
#include "GUI/Popups/TextPopup.h"
#include "Presets/Reflection/Build.h"

#include <juce_audio_processors/juce_audio_processors.h>

#include <array>
#include <initializer_list>

namespace Zn::GUI
{
namespace
{
constexpr std::array lines { "A drawn-pattern arpeggiator with a wavetable synthesiser.",
                             "Free software under the GNU General Public Licence, version 3 or later.",
                             "Made with JUCE, nlohmann json, Inter and Orbitron." };
} // namespace

juce::String programDetails()
{
    juce::StringArray details;
    details.add ("Vornel " + juce::String (Build::version.toText()));
    details.add (juce::AudioProcessor::getWrapperTypeDescription (juce::PluginHostType::getPluginLoadedAs())
                 + juce::String (" in ") + juce::PluginHostType().getHostDescription());
    details.add (juce::SystemStats::getOperatingSystemName() + ", " + juce::SystemStats::getCpuModel());
    details.add (juce::SystemStats::getJUCEVersion());
    return details.joinIntoString ("\n");
}

AboutPopup::AboutPopup (EditorContext& contextToUse)
    : Popup (contextToUse, "AboutPopup", "About Vornel")
    , version (context,
               "AboutVersion",
               Build::version.toText(),
               { .justification = juce::Justification::centredRight })
    , licences (
          context, "AboutLicences", {}, [this] { context.overlay.openPopup (TextPopup::licences (context)); })
    , news (context, "AboutNews", {}, [this] { context.overlay.openPopup (TextPopup::news (context)); })
    , copy (context,
            "AboutCopy",
            {},
            [this] {
                Clipboard::setText (programDetails());
                context.overlay.showMessage ("Details copied");
            })
    , closeButton (context, "AboutClose", {}, [this] { close(); })
{
    for (auto* part :
         std::initializer_list<juce::Component*> { &version, &licences, &news, &copy, &closeButton })
        addAndMakeVisible (part);
}

void AboutPopup::schemeChanged()
{
    Popup::schemeChanged();
    logo.layOut (context.canvas, context.canvas.boundsIn (this, "AboutLogo").toFloat());
    textArea = context.canvas.boundsIn (this, "AboutText");
    font = context.canvas.fontOf ("FontBody");
}

void AboutPopup::paint (juce::Graphics& g)
{
    Popup::paint (g);
    logo.paint (g);
    g.setFont (font);

    auto area = textArea;
    const auto lineHeight = area.getHeight() / static_cast<int> (lines.size());

    for (const auto* line : lines)
    {
        g.setColour (AssetScheme::Base::get().colourOf (line == lines.front() ? "Text" : "TextSecondary"));
        g.drawText (line, area.removeFromTop (lineHeight), juce::Justification::centredLeft, true);
    }
}
} // namespace Zn::GUI
