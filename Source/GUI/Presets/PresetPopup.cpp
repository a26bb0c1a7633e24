#include "GUI/Presets/PresetPopup.h"

#include <algorithm>

namespace Zn::GUI
{
namespace
{
/** Quiet, as what a browser is for are its lists. */
Button::Options labelled (const juce::String& text)
{
    return { .text = text };
}

juce::String textOf (const PresetGroup& group)
{
    switch (group.kind)
    {
    case PresetGroup::Kind::all:
        return "All";
    case PresetGroup::Kind::favourites:
        return "Favourites";
    case PresetGroup::Kind::own:
        return "Mine";
    case PresetGroup::Kind::category:
        break;
    }

    return group.category;
}

/** No folder has the name of another group: these begin with their kind. */
juce::String idOf (const PresetGroup& group)
{
    if (group.kind == PresetGroup::Kind::all)
        return {};

    return juce::String (static_cast<int> (group.kind)) + group.category;
}
} // namespace

PresetPopup::PresetPopup (PresetActions& actionsToUse, PresetPreviews& previewsToShow, CallbackFunc saveAs)
    : BrowserPopup (actionsToUse.getContext(),
                    "Preset",
                    "Choose a " + actionsToUse.getKind().noun,
                    actionsToUse.getKind().getColours())
    , actions (actionsToUse)
    , previews (previewsToShow)
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
    for (auto* part : std::initializer_list<juce::Component*> { &list,
                                                                &divider,
                                                                &loadDefault,
                                                                &loadInit,
                                                                &showFolder,
                                                                &saveAsButton })
        addAndMakeVisible (part);

    search.setTitle ("Search " + actions.getKind().plural);

    const auto current = actions.getCurrentFile();

    if (const auto category = current ? categoryOf (actions.getLibrary(), *current) : juce::String();
        category.isNotEmpty())
        groups.choose (idOf ({ PresetGroup::Kind::category, category }));

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

        const auto row = list.getSelectedRow();
        const auto* const selected = list.presetAt (row);
        const auto selectedFile = selected != nullptr ? selected->file : juce::File();

        catalogue = catalogueOf (actions.getLibrary(), favourites);
        search.setPlaceholder ("Search " + juce::String (catalogue.getPresets().size()) + " "
                               + actions.getKind().plural);
        showGroups();
        showFound();
        list.selectFile (selectedFile);

        if (list.getSelectedRow() < 0 && row >= 0) // it has another name now, or is gone
            list.selectRow (std::min (row, list.getNumRows() - 1));
    }

    list.setCurrent (actions.getCurrentFile());
}

void PresetPopup::markFound()
{
    const auto current = getWords().isEmpty() ? actions.getCurrentFile() : std::nullopt;
    list.selectFile (current.value_or (juce::File()));

    if (list.getSelectedRow() < 0)
        list.selectRow (0);
}

void PresetPopup::showGroups()
{
    std::vector<BrowserGroups::Line> lines;

    for (const auto& group : catalogue.getGroups())
        lines.push_back ({ .id = idOf (group),
                           .text = textOf (group),
                           .count = catalogue.count (group, getWords()),
                           .hasStar = group.kind == PresetGroup::Kind::favourites,
                           .endsBlock = group.kind == PresetGroup::Kind::own });

    groups.show (std::move (lines));
}

PresetGroup PresetPopup::getGroup() const
{
    for (const auto& group : catalogue.getGroups())
        if (idOf (group) == groups.getChosen())
            return group;

    return {};
}

void PresetPopup::showFound()
{
    const auto group = getGroup();
    list.show (catalogue, catalogue.find (group, getWords()), hintOf (group));
}

juce::String PresetPopup::hintOf (const PresetGroup& group) const
{
    if (getWords().isNotEmpty())
        return group.kind == PresetGroup::Kind::all ? "Nothing has these words. Try fewer."
                                                    : "Nothing has these words. Try fewer, or \"All\".";

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
} // namespace Zn::GUI
