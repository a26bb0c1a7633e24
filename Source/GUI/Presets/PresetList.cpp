#include "GUI/Presets/PresetList.h"

#include "GUI/Presets/PresetMenus.h"

#include <algorithm>

namespace Zn::GUI
{
PresetList::PresetList (PresetActions& actionsToUse, PresetPreviews& previewsToShow)
    : BrowserList (actionsToUse.getContext().canvas, "PresetList", actionsToUse.getKind().title + " list")
    , actions (actionsToUse)
    , previews (previewsToShow)
    , style (std::make_unique<PresetRowStyle> (getCanvas(), actionsToUse.getKind()))
{
    setModel (this);
}

PresetList::~PresetList()
{
    setModel (nullptr);
}

void PresetList::schemeChanged()
{
    style = std::make_unique<PresetRowStyle> (getCanvas(), actions.getKind());
    layOutRows (style->row.getHeight());
}

void PresetList::show (const PresetCatalogue& newCatalogue,
                       std::vector<int> newFound,
                       const juce::String& newHint)
{
    catalogue = &newCatalogue;
    found = std::move (newFound);
    setHint (newHint);
    updateContent();
}

void PresetList::setCurrent (const std::optional<juce::File>& file)
{
    current = file.value_or (juce::File());
    repaint();
}

void PresetList::selectFile (const juce::File& file)
{
    for (auto row = 0; row < getNumRows(); ++row)
        if (presetAt (row)->file == file)
            return selectRow (row);

    deselectAllRows();
}

const CataloguedPreset* PresetList::presetAt (int row) const
{
    if (row < 0 || row >= static_cast<int> (found.size()))
        return nullptr;

    return &catalogue->getPresets()[static_cast<std::size_t> (found[static_cast<std::size_t> (row)])];
}

void PresetList::activate()
{
    const auto* const preset = presetAt (getSelectedRow());

    if (preset == nullptr)
        return;

    if (isCurrent (*preset))
        actions.getContext().overlay.closePopup();
    else
        actions.load (preset->file);
}

const PresetPreview* PresetList::previewOf (const CataloguedPreset& preset)
{
    return actions.getKind().hasPatterns ? previews.find (preset.file) : nullptr;
}

TooltipText PresetList::tooltipOf (const CataloguedPreset& preset)
{
    juce::StringArray facts;

    if (const auto* const preview = previewOf (preset); preview != nullptr && preview->numPatterns > 0)
    {
        constexpr auto decimals = 2;
        const auto quarters =
            juce::String (preview->quarters, decimals).trimCharactersAtEnd ("0").trimCharactersAtEnd (".");
        facts.add (quarters + (quarters == "1" ? " beat" : " beats"));
        facts.add (juce::String (preview->numPatterns)
                   + (preview->numPatterns == 1 ? " pattern" : " patterns"));
    }

    facts.add (preset.isOwn ? "Your own" : "Factory");
    return { .title = preset.name,
             .value = facts.joinIntoString (", "),
             .help = preset.file.getFullPathName(),
             .shortcut = {} };
}

std::unique_ptr<BrowserRow> PresetList::makeRow()
{
    return std::make_unique<PresetRow> (static_cast<PresetRowOwner&> (*this));
}

juce::String PresetList::getNameForRow (int row)
{
    const auto* const preset = presetAt (row);

    if (preset == nullptr)
        return {};

    auto name = preset->name;

    if (preset->category.isNotEmpty())
        name << ", " << preset->category;

    return preset->isFavourite ? name + ", favourite" : name;
}

void PresetList::rowClicked (int row)
{
    selectRow (row);

    if (const auto* const preset = presetAt (row); preset != nullptr && ! isCurrent (*preset))
        actions.load (preset->file);
}

void PresetList::rowDoubleClicked (int)
{
    actions.getContext().overlay.closePopup();
}

void PresetList::starClicked (int row)
{
    if (const auto* const preset = presetAt (row))
        toggleFavourite (*preset);
}

void PresetList::toggleFavourite (const CataloguedPreset& preset)
{
    actions.setFavourite (preset.name, ! preset.isFavourite);
}

void PresetList::menuAsked (int row)
{
    const auto* const preset = presetAt (row);

    if (preset == nullptr)
        return;

    selectRow (row);

    const juce::Component::SafePointer<PresetList> self (this);
    const auto file = preset->file;
    const auto menu = presetFileMenu (*preset);

    actions.getContext().overlay.showMenu (menu, nullptr, [self, file] (int chosen) {
        if (self == nullptr)
            return;

        self->selectFile (file);
        const auto line = self->getSelectedRow();
        const auto* const same = self->presetAt (line);

        if (same == nullptr)
            return;

        switch (static_cast<PresetFileCommand> (chosen))
        {
        case PresetFileCommand::favourite:
            return self->toggleFavourite (*same);
        case PresetFileCommand::showFile:
            return file.revealToUser();
        case PresetFileCommand::rename:
            return self->rename (line);
        case PresetFileCommand::remove:
            return self->remove (file);
        case PresetFileCommand::none:
            break;
        }
    });
}

void PresetList::rename (int row)
{
    auto* const line = dynamic_cast<PresetRow*> (getComponentForRowNumber (row));
    const auto* const preset = presetAt (row);

    if (line == nullptr || preset == nullptr)
        return;

    const juce::Component::SafePointer<PresetList> self (this);
    const auto file = preset->file;

    actions.getContext().overlay.enterValue (line->getNamePlace(),
                                             preset->name,
                                             [self, file] (const juce::String& text) {
                                                 if (self == nullptr)
                                                     return true;

                                                 const auto problem = self->actions.rename (file, text);

                                                 if (problem.isNotEmpty())
                                                     self->actions.getContext().overlay.showMessage (problem);

                                                 return problem.isEmpty();
                                             });
}

void PresetList::remove (const juce::File& file)
{
    const auto problem = actions.remove (file);
    const auto done = file.getFileNameWithoutExtension().quoted() + " is in the bin.";
    actions.getContext().overlay.showMessage (problem.isEmpty() ? done : problem);
}

bool PresetList::keyPressed (const juce::KeyPress& key)
{
    const auto row = getSelectedRow();
    const auto* const preset = presetAt (row);

    if (preset != nullptr && key == juce::KeyPress ('f'))
        return toggleFavourite (*preset), true;

    if (preset != nullptr && key == juce::KeyPress::F2Key && preset->isOwn)
        return rename (row), true;

    return ListBox::keyPressed (key);
}
} // namespace Zn::GUI
