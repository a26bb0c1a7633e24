#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Standalone/KeyboardStrip.h"
#include "GUI/Standalone/StandaloneView.h"
#include "GUI/Support/OpenEditor.h"
#include "Plugin/Bases/StateEditor.h"

#include <gmock/gmock.h>

#include <set>

namespace Zn::GUI
{
namespace
{
/** Typed keys over a keyboard, with a computer's keys that go up and down as a test says. */
struct TypedKeysTest : testing::Test
{
    void press (char letter)
    {
        down.insert (letter);
        typed.press ({ letter, {}, juce::juce_wchar (letter) });
    }

    void lift (char letter)
    {
        down.erase (letter);
        typed.releaseKeys();
    }

    std::vector<int> sounding()
    {
        std::vector<int> notes;

        for (auto note = 0; note < 128; ++note)
            if (keys.isNoteOn (1, note))
                notes.push_back (note);

        return notes;
    }

    juce::Component window;
    juce::MidiKeyboardState keys;
    std::set<int> down;
    TypedKeys typed { window, keys, [this] (int code) { return down.contains (code); } };
};

using testing::ElementsAre;
using testing::IsEmpty;

juce::MidiBuffer takenFrom (Midi::Inbox& inbox)
{
    juce::MidiBuffer midi;
    inbox.drainInto (midi);
    return midi;
}
} // namespace

TEST_F (TypedKeysTest, PlaysAChordAndEndsEachNoteWithItsKeyThoughTheOctaveHasMoved)
{
    for (const auto letter : { 'a', 'd', 'd', 'g' }) // d repeats itself
        press (letter);

    EXPECT_THAT (sounding(), ElementsAre (48, 52, 55));

    press ('x');
    lift ('d');
    press ('w');
    EXPECT_THAT (sounding(), ElementsAre (48, 55, 61));

    typed.setActive (false);
    EXPECT_THAT (sounding(), IsEmpty());
    press ('s');
    EXPECT_THAT (sounding(), IsEmpty()) << "is a command now";
}

TEST_F (TypedKeysTest, LeavesCommandsAloneAndStaysOnTheKeyboard)
{
    EXPECT_FALSE (typed.press ({ 'a', juce::ModifierKeys::ctrlModifier, 'a' }));
    EXPECT_FALSE (typed.press (juce::KeyPress (juce::KeyPress::spaceKey)));

    for (auto count = 0; count < 20; ++count)
        press ('x');

    press (';'); // above the last note
    press ('a');
    EXPECT_THAT (sounding(), ElementsAre (108, 124));
}

TEST (KeyboardStrip, SendsWhatIsPlayedToTheNextBlockAndEndsItWhenTheWindowCloses)
{
    Tests::OpenEditor editor;
    auto& inbox = editor.getState().inbox;

    {
        KeyboardStrip strip { editor.page.getContext(), editor.page, [] {} };
        strip.getKeys().noteOn (1, 60, 0.5f);
        EXPECT_EQ (takenFrom (inbox).getNumEvents(), 1);
    }

    const auto rest = takenFrom (inbox);
    ASSERT_EQ (rest.getNumEvents(), 1);
    EXPECT_TRUE ((*rest.begin()).getMessage().isNoteOff());
}

namespace
{
/** The program's window, with its editor. */
struct ProgramWindow
{
    using Editor = Audio::Plugin::StateEditor<Audio::Plugins::Vornel::Processor, Page>;

    template <typename Part>
    Part& childOfStrip (int index = 0)
    {
        for (auto* child : view.getStrip().getChildren())
            if (auto* part = dynamic_cast<Part*> (child); part != nullptr && index-- == 0)
                return *part;

        throw std::runtime_error ("The keyboard lacks a part");
    }

    auto& piano() { return childOfStrip<juce::MidiKeyboardComponent>(); }

    int numGaps()
    {
        const auto image = piano().createComponentSnapshot (piano().getLocalBounds());
        const auto gap = AssetScheme::Base::get().colourOf ("Window");
        auto count = 0;

        for (auto x = 0; x < image.getWidth(); ++x)
            count += image.getPixelAt (x, image.getHeight() * 7 / 8) == gap ? 1 : 0;

        return count;
    }

    Singleton::UserToken singletonsStay;
    Tests::UserFiles userFiles;
    Audio::Plugins::Vornel::Processor processor { Audio::Plugins::Vornel::StartUp::empty };
    std::unique_ptr<Editor> editor = std::make_unique<Editor> (processor);
    Page& page = editor->getPage();
    StandaloneView view { std::move (editor), page, [] {} };
};
} // namespace

TEST (KeyboardStrip, FollowsTheSettingsAndTheColoursOfTheUser)
{
    ProgramWindow window;
    EXPECT_GE (window.numGaps(), 48) << "between fifty white keys";

    AssetScheme::Base::get().setUserColours (R"({"Window": {"r": 200, "g": 3, "b": 4}})");
    EXPECT_GE (window.numGaps(), 48);

    auto& settings = window.page.getContext().settings;
    auto values = settings.get();
    values.middleC = 4;
    settings.set (values);
    EXPECT_EQ (window.childOfStrip<juce::Label>().getText(), "C3");
    EXPECT_EQ (window.piano().getOctaveForMiddleC(), 4);
}

TEST (KeyboardStrip, ExplainsItsButtons)
{
    ProgramWindow window;
    auto& tooltips = dynamic_cast<OverlayLayer&> (window.page.getContext().overlay).getTooltips();

    for (auto index = 0; index < 4; ++index)
    {
        auto& button = window.childOfStrip<juce::Button> (index);
        tooltips.look (&button, {}, 5000);
        EXPECT_EQ (tooltips.getShown(), button.getTitle());
    }
}
} // namespace Zn::GUI
