#include "Foundation/Events/Listener.h"
#include "Foundation/Events/Value.h"
#include "Parameters/AtomicBool.h"
#include "Parameters/BoolRef.h"
#include "Parameters/ConnectedState.h"
#include "Parameters/CreateForwarder.h"
#include "Parameters/HostParamList.h"
#include "Parameters/IntLike.h"
#include "Parameters/ParamKinds.h"
#include "Parameters/ParameterLogs.h"
#include "Parameters/UpdatingConnector.h"
#include "Support/Documents.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <numeric>

namespace Zn::Parameters
{
namespace
{
using Tests::Lines;
using Tests::linesOf;
using Shared = std::shared_ptr<Parameter>;

/** One value of every kind that a widget can be bound to. */
struct Model : Audio::ParamList
{
    Audio::BoolParam enable { *this, "Enable", true };
    Audio::FloatParam cutoff { *this, "Cutoff", { 10.0f, 12000.0f }, 8000.0f };
    Audio::IntParam octave { *this, "Octave", { -3, 3 }, 0 };
    Audio::ChoiceParam mode { *this, "Mode", { "Up", "Down", "Random", "As played" }, 1 };
    Audio::VolumeParam volume { *this, "Volume", 6.0f, -15.0f };
    bool snap = true;
    std::atomic<bool> keyMode { false };
    int grid = 16;

    std::vector<std::function<Shared()>> kinds()
    {
        std::vector<std::function<Shared()>> result;

        for (auto& [name, holder] : getParams())
            result.push_back ([target = holder] { return Shared (createForwarder (*target)); });

        result.push_back ([this] { return std::make_shared<BoolRef> (snap, "Snap", true); });
        result.push_back ([this] { return std::make_shared<AtomicBool> (keyMode, "Key mode"); });
        result.push_back ([this] { return std::make_shared<IntRef<int>> (grid, "Grid", 1, 128, 16); });
        return result;
    }
};

/** All that a parameter answers, to compare. */
Lines answersOf (Parameter& p)
{
    Lines answers { p.getName().toStdString(), p.getCurrentText().toStdString() };

    for (const auto number : { p.getNormalised(), p.getFloat(), p.getDefault(), float (p.getInt()) })
        answers.push_back (std::to_string (number));

    for (const auto flag : { p.getBool(), p.hasSteps(), p.isHostVisible(), p.isGestureActive() })
        answers.push_back (flag ? "yes" : "no");

    for (const auto proportion : { 0.0f, 0.3f, 1.0f })
        answers.push_back (p.getTextForNormalised (proportion).toStdString());

    answers.push_back (std::to_string (p.getNumSteps()));
    answers.push_back (Tests::saved (p).dump());

    for (const auto& line : linesOf (p.getMenuChoices()))
        answers.push_back (line);

    return answers;
}

using Setter = std::function<void (Parameter&)>;

const std::vector<std::pair<const char*, Setter>> setters {
    { "setNormalisedNotifying", [] (Parameter& p) { p.setNormalisedNotifying (0.7f); } },
    { "setRawNormalised", [] (Parameter& p) { p.setRawNormalised (0.2f); } },
    { "setInt", [] (Parameter& p) { p.setInt (3); } },
    { "setBool", [] (Parameter& p) { p.setBool (false); } },
    { "setDouble", [] (Parameter& p) { p.setDouble (1.0); } },
    { "setFromText", [] (Parameter& p) { p.setFromText (p.getTextForNormalised (1.0f)); } },
    { "menu",
      [] (Parameter& p) {
          const auto menu = p.getMenuChoices();

          if (! menu.subItems.empty())
              menu.subItems.front().choose();
      } },
};
} // namespace

TEST (Connector, AnswersAndSetsLikeItsTarget)
{
    Model plain, connected;
    const auto plainKinds = plain.kinds(), connectedKinds = connected.kinds();

    for (std::size_t kind = 0; kind < plainKinds.size(); ++kind)
    {
        const auto target = plainKinds[kind]();
        Connector connector (connectedKinds[kind]());

        for (const auto& [name, set] : setters)
        {
            set (*target);
            set (connector);
            target->beginGesture();
            connector.beginGesture();
            EXPECT_EQ (answersOf (connector), answersOf (*target)) << name;
            target->endGesture();
            connector.endGesture();
            EXPECT_EQ (answersOf (connector), answersOf (*target)) << name;
        }

        Tests::load (connector, Tests::saved (*target));
        EXPECT_EQ (answersOf (connector), answersOf (*target));
    }
}

TEST (UpdatingConnector, TellsOnceOfEachValueThatItSets)
{
    Model model;

    for (const auto& kind : model.kinds())
    {
        auto calls = 0;
        const Connector connector (kind());
        UpdatingConnector updating (connector, [&calls] { ++calls; });
        const auto hasMenu = ! updating.getMenuChoices().subItems.empty();
        auto expected = 0;

        for (const auto& [name, set] : setters)
        {
            set (updating);
            expected += hasMenu || std::string (name) != "menu";
            EXPECT_EQ (calls, expected) << name << " of " << updating.getName();
        }

        connector.getTarget()->setBool (true);
        updating.beginGesture();
        updating.endGesture();
        EXPECT_EQ (calls, expected) << "not for what it has not set";
    }
}

TEST (UpdatingConnector, WrapsAnotherAndBothTell)
{
    Model model;
    std::string calls;
    const auto inner = std::make_shared<UpdatingConnector> (Shared (createForwarder (model.mode)),
                                                            [&calls] { calls += "inner "; });
    UpdatingConnector outer (inner, [&calls] { calls += "outer "; });

    outer.setInt (2);
    outer.getMenuChoices().subItems.front().choose();
    EXPECT_EQ (calls, "inner outer inner outer ");
}

TEST (ConnectedState, MakesEachValueOfASelectorASwitch)
{
    Model model;
    const Shared mode = createForwarder (model.mode);
    std::vector<std::unique_ptr<ConnectedState>> buttons;

    for (auto index : { 0, 1, 2, 3 })
        buttons.push_back (std::make_unique<ConnectedState> (mode, index, 1));

    const std::vector<std::pair<Setter, std::string>> rows {
        { [&] (auto&) { buttons[3]->setBool (true); }, "...x" },
        { [&] (auto&) { buttons[2]->setNormalisedNotifying (0.51f); }, "..x." },
        { [&] (auto&) { buttons[0]->setNormalisedNotifying (std::nanf ("")); }, "..x." },
        { [&] (auto&) { buttons[2]->setNormalisedNotifying (0.5f); }, ".x.." },
        { [&] (auto&) { buttons[0]->setFromText ("On"); }, "x..." },
        { [&] (auto&) { buttons[3]->getMenuChoices().subItems[1].choose(); }, "...x" },
        { [&] (auto& selector) { selector.setInt (2); }, "..x." },
    };

    for (const auto& [set, expected] : rows)
    {
        set (*mode);
        std::string lit;

        for (const auto& button : buttons)
            lit += button->getBool() ? 'x' : '.';

        EXPECT_EQ (lit, expected);
    }

    EXPECT_EQ (linesOf (buttons[2]->getMenuChoices()), (Lines { "Off", "*On" }));
    EXPECT_EQ (buttons[1]->getDefault(), 1.0f);
    EXPECT_EQ (buttons[0]->getDefault(), 0.0f);
    EXPECT_FALSE (ConnectedState (mode, 0, 1).getBool()) << "neither value";
}

namespace
{
/** Pieces of an editor and of what it shows, which refer to each other and go in any order. */
class Pieces
{
public:
    static constexpr std::size_t count = 6;

    explicit Pieces (Model& model) : state (std::make_unique<State> (1))
    {
        connector = std::make_unique<Connector> (new IntRef<int> (model.grid, "Grid", 0, 3, 1));
        const auto& target = connector->getTarget();
        updating = std::make_unique<UpdatingConnector> (*connector, [this] { stateChanged(); });
        button = std::make_unique<Connector> (std::make_shared<ConnectedState> (target, 2, 0));
        menu = std::make_unique<MenuItems::Item> (updating->getMenuChoices());
        editor = std::make_unique<Editor> (*state, target);
    }

    void destroy (std::size_t index)
    {
        const std::array<std::function<void()>, count> pieces {
            [this] { state.reset(); },  [this] { connector.reset(); }, [this] { updating.reset(); },
            [this] { button.reset(); }, [this] { menu.reset(); },      [this] { editor.reset(); },
        };

        pieces[index]();
    }

    void useAllThatAreLeft()
    {
        for (auto* parameter :
             std::initializer_list<Parameter*> { connector.get(), updating.get(), button.get() })
            if (parameter != nullptr)
                for (const auto& [name, set] : setters)
                    set (*parameter);

        if (menu != nullptr)
            for (const auto& line : menu->subItems)
                if (! line.isTicked())
                    line.choose();

        stateChanged();
    }

private:
    using State = Events::Value<int>;

    struct Editor
    {
        Editor (State& source, Shared target)
            : knob (std::move (target)), listener (source, [this] { shown = knob.getCurrentText(); })
        {}

        Connector knob;
        juce::String shown;
        const Events::Listener listener;
    };

    void stateChanged()
    {
        if (state != nullptr)
            state->callListeners();
    }

    std::unique_ptr<State> state;
    std::unique_ptr<Connector> connector, button;
    std::unique_ptr<UpdatingConnector> updating;
    std::unique_ptr<MenuItems::Item> menu;
    std::unique_ptr<Editor> editor;
};
} // namespace

TEST (ConnectorLifetimes, AllowEveryOrderOfTheEnd)
{
    Model model;
    std::array<std::size_t, Pieces::count> order {};
    std::iota (order.begin(), order.end(), std::size_t {});

    do
    {
        Pieces pieces (model);

        for (auto index : order)
        {
            pieces.destroy (index);
            pieces.useAllThatAreLeft();
        }
    } while (std::next_permutation (order.begin(), order.end()));
}

TEST (ConnectorLifetimes, LetAMenuOutliveWhatItWasMadeFor)
{
    Model model;
    auto calls = 0;
    auto shared = std::make_unique<Connector> (createForwarder (model.mode));
    auto updating = std::make_unique<UpdatingConnector> (*shared, [&calls] { ++calls; });
    const auto menu = updating->getMenuChoices();

    updating.reset();
    menu.subItems.front().choose();
    EXPECT_EQ (model.mode.get(), 3) << "another connector keeps the target";
    EXPECT_EQ (calls, 0) << "but who wanted to know is gone";

    shared.reset();
    menu.subItems.back().choose();
    EXPECT_EQ (linesOf (menu), (Lines { "As played", "Random", "Down", "Up" }));
    EXPECT_EQ (model.mode.get(), 3);
}

TEST (ConnectorLifetimes, SurviveAChangeThatRebuildsTheEditor)
{
    /** Looks at itself after its owner has let go of it. */
    struct Rebuilding : IntRef<int>
    {
        Rebuilding (int& number, CallbackFunc toCall)
            : IntRef (number, "Grid", 0, 8, 0), rebuild (std::move (toCall))
        {}

        void setIntValue (int newValue) override
        {
            rebuild();
            IntRef::setIntValue (newValue);
        }

        CallbackFunc rebuild;
    };

    for (const auto& [name, set] : setters)
    {
        auto value = 5;
        std::unique_ptr<Parameter> widget;
        const auto rebuild = [&widget] { widget.reset(); };

        widget = std::make_unique<Connector> (new Rebuilding (value, rebuild));
        set (*widget);
        EXPECT_NE (value, 5) << name;

        value = 5;
        widget = std::make_unique<UpdatingConnector> (std::make_shared<Rebuilding> (value, rebuild), [] {});
        set (*widget);
        EXPECT_NE (value, 5) << name;

        auto flag = true;
        widget = std::make_unique<UpdatingConnector> (std::make_shared<BoolRef> (flag, "Flag"), rebuild);
        set (*widget);
        EXPECT_EQ (widget, nullptr) << name;
    }
}

TEST (ConnectorLifetimes, EndAnOpenGestureWithTheForwarder)
{
    Zn::Tests::PlainProcessor processor;
    Audio::ManagedParameters managed;
    Model model;
    Audio::HostParamList host { managed };
    host.forward ("Mode", model.mode);
    host.addTo (processor);
    const Tests::HostLog log (*processor.getParameters()[0]);

    auto knob = std::make_unique<Connector> (createForwarder (model.mode));
    auto twin = std::make_unique<Connector> (knob->getTarget());
    knob->beginGesture();
    knob.reset();
    twin->beginGesture();
    EXPECT_EQ (log.lines, Lines { "begin" });

    twin.reset();
    EXPECT_EQ (log.lines, (Lines { "begin", "end" }));
}
} // namespace Zn::Parameters
