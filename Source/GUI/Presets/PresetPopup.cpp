#include "GUI/Presets/PresetPopup.h"

namespace Zn::GUI
{
namespace
{
/** Quiet, as what a browser is for are its lists. */
Button::Options labelled (const juce::String& text)
{
    return { .text = text };
}
} // namespace

PresetPopup::PresetPopup (PresetActions& actionsToUse, PresetPreviews& previewsToShow, CallbackFunc saveAs)
    : Popup (actionsToUse.getContext(), "PresetPopup", "Choose a " + actionsToUse.getKind().noun)
    , actions (actionsToUse)
    , previews (previewsToShow)
    , search (context.canvas, "PresetSearch", "search.svg")
    , groups (context.canvas, actions.getKind(), [this] { showFound(); })
    , list (actionsToUse, previewsToShow)
    , divider (context, "PresetPopupDivider")
    , loadDefault (context, "PresetLoadDefault", labelled ("Load Default"), [this] { actions.loadDefault(); })
    , loadInit (context, "PresetLoadInit", labelled ("Load Init"), [this] { actions.loadInit(); })
    , showFolder (context, "PresetShowFolder", labelled ("Show folder"), [this] { actions.showFolder(); })
    , saveAsButton (context,
                    "PresetSaveAs",
                    labelled (juce::String::fromUTF8 ("Save as\xe2\x80\xa6")),
                    std::move (saveAs))
    , libraryListener (actions.getLibrary().changed, [this] { isStale = true; })
    , settingsListener (context.settings, [this] { isStale = true; })
    , pollListener (context.polls, [this] { poll(); })
{
    for (auto* part : std::initializer_list<juce::Component*> { &search,
                                                                &groups,
                                                                &list,
                                                                &divider,
                                                                &loadDefault,
                                                                &loadInit,
                                                                &showFolder,
                                                                &saveAsButton })
        addAndMakeVisible (part);

    search.setTitle ("Search " + actions.getKind().plural);
    search.onKey = [this] (const juce::KeyPress& key) { return answerSearchKey (key); };

    const auto current = actions.getCurrentFile();

    if (const auto category = current ? categoryOf (actions.getLibrary(), *current) : juce::String();
        category.isNotEmpty())
        groups.choose ({ PresetGroup::Kind::category, category });

    rebuild();

    if (current)
        list.selectFile (*current);
}

void PresetPopup::rebuild()
{
    isStale = false;
    const auto& newList = actions.getLibrary().getList();
    const auto& newFavourites = context.settings.get().favourites;

    if (catalogue.getGroups().empty() || listed != newList || favourites != newFavourites)
    {
        previews.lookAgain();
        listed = newList;
        favourites = newFavourites;

        const auto* const selected = list.presetAt (list.getSelectedRow());
        const auto selectedFile = selected != nullptr ? selected->file : juce::File();

        catalogue = catalogueOf (actions.getLibrary(), favourites);
        search.setPlaceholder ("Search " + juce::String (catalogue.getPresets().size()) + " "
                               + actions.getKind().plural);
        groups.show (catalogue, words);
        showFound();
        list.selectFile (selectedFile);
    }

    list.setCurrent (actions.getCurrentFile());
}

/** Words are searched for everywhere at first; whoever then chooses a group means that. */
void PresetPopup::answerTyping()
{
    const auto before = std::exchange (words, search.getText().trim());

    if (words == before)
        return;

    if (before.isEmpty())
    {
        groupBeforeSearch = groups.getChosen();
        groups.choose ({});
    }
    else if (words.isEmpty())
    {
        groups.choose (groupBeforeSearch);
    }

    groups.show (catalogue, words);
    showFound();
    list.selectRow (0);
}

void PresetPopup::showFound()
{
    const auto& group = groups.getChosen();
    list.show (catalogue, catalogue.find (group, words), hintOf (group));
}

juce::String PresetPopup::hintOf (const PresetGroup& group) const
{
    if (words.isNotEmpty())
        return "Nothing has these words. Try fewer, or \"All\".";

    if (group.kind == PresetGroup::Kind::favourites)
        return "No favourites yet. Click the star of a " + actions.getKind().noun + ".";

    return juce::String::fromUTF8 ("Nothing saved yet. \"Save as\xe2\x80\xa6\" keeps what you hear now.");
}

void PresetPopup::poll()
{
    answerTyping();

    if (isStale)
        rebuild();

    if (previews.readSome())
        list.repaint();
}

bool PresetPopup::answerSearchKey (const juce::KeyPress& key)
{
    using juce::KeyPress;
    answerTyping(); // of what has been typed since the last look

    if (key == KeyPress::upKey || key == KeyPress::downKey)
        return list.moveSelection (key == KeyPress::upKey ? -1 : 1), true;

    if (key == KeyPress::pageUpKey || key == KeyPress::pageDownKey)
        return list.moveSelection (list.getNumLinesInSight() * (key == KeyPress::pageUpKey ? -1 : 1)), true;

    if (key == KeyPress::returnKey)
        return list.activate(), true;

    if (key == KeyPress::escapeKey)
        return close(), true;

    return false;
}

bool PresetPopup::keyPressed (const juce::KeyPress& key)
{
    return key == juce::KeyPress::escapeKey && (close(), true);
}
} // namespace Zn::GUI
