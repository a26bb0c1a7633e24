#include "GUI/Presets/SavePopup.h"

#include "GUI/Presets/SaveTarget.h"
#include "Parameters/BoolRef.h"

namespace Zn::GUI
{
namespace
{
/** Lets nothing be typed that a file cannot be called. */
struct NameFilter : juce::TextEditor::InputFilter
{
    juce::String filterNewText (juce::TextEditor&, const juce::String& typed) override
    {
        return SaveTarget::allowedCharacters (typed);
    }
};

juce::StringArray categoriesOf (Presets::Base& library)
{
    juce::StringArray categories;

    for (const auto& entry : library.getList())
        categories.addIfNotAlreadyThere (categoryOf (library, entry.file));

    return categories;
}

juce::String currentCategory (PresetActions& actions)
{
    const auto file = actions.getCurrentFile();
    return file ? categoryOf (actions.getLibrary(), *file) : juce::String();
}
} // namespace

SavePopup::SavePopup (PresetActions& actionsToUse, std::function<void (const juce::File&)> saveTo)
    : Popup (actionsToUse.getContext(), "SavePopup", "Save " + actionsToUse.getKind().title.toLowerCase())
    , actions (actionsToUse)
    , save (std::move (saveTo))
    , form (context)
    , withSound (actions.getKind().state.savesParams)
    , category (std::make_shared<CategoryParam> (
          categoriesOf (actions.getLibrary()), currentCategory (actions), [this] { askForCategory(); }))
    , nameLabel (form.context, "SaveNameLabel", "Name")
    , name (context.canvas, "SaveName")
    , categoryLabel (form.context, "SaveCategoryLabel", "Category")
    , categoryField (form.context, "SaveCategory", category)
    , cancelButton (form.context, "SaveCancel", { .text = "Cancel" }, [this] { close(); })
    , confirmButton (form.context,
                     "SaveConfirm",
                     { .text = "Save", .look = Button::Look::primary, .accent = actions.getKind().accent },
                     [this] { confirm(); })
    , pollListener (context.polls, [this] { update(); })
{
    if (actions.getKind().hasPatterns)
        withSoundToggle.emplace (
            form.context,
            "SaveWithSound",
            std::make_shared<Parameters::BoolRef> (withSound, "Keep the sound", true),
            Toggle::Options { .look = Toggle::Look::box, .text = "Keep the sound and arp settings with it" });

    for (auto* part : std::initializer_list<juce::Component*> { &nameLabel,
                                                                &name,
                                                                &categoryLabel,
                                                                &categoryField,
                                                                &cancelButton,
                                                                &confirmButton })
        addAndMakeVisible (part);

    if (withSoundToggle)
        addAndMakeVisible (*withSoundToggle);

    name.setTitle ("Name");
    name.setInputFilter (new NameFilter(), true);
    name.setText (SaveTarget::freeName (actions.getLibrary(), actions.getLibrary().getName()), false);
    name.onKey = [this] (const juce::KeyPress& key) {
        return key == juce::KeyPress::returnKey && (confirm(), true);
    };
    update();
}

juce::File SavePopup::getTarget() const
{
    return SaveTarget::fileFor (actions.getLibrary(), name.getText(), category->get());
}

void SavePopup::update()
{
    const auto target = getTarget();
    confirmButton.setLabel (target.existsAsFile() ? "Replace" : "Save");

    const auto canSave = target != juce::File();

    if (confirmButton.isEnabled() != canSave)
        confirmButton.setHelp (canSave ? controlText ("SaveConfirm").help : "Type a name first.");

    confirmButton.setEnabled (canSave);
}

void SavePopup::confirm()
{
    const auto target = getTarget();

    if (target == juce::File())
        return;

    if (withSoundToggle)
        actions.getKind().state.savesParams = withSound;

    const auto saveTo = save; // this may be gone once the pop-up is closed
    close();
    saveTo (target);
}

void SavePopup::askForCategory()
{
    const std::weak_ptr<CategoryParam> asked (category);

    context.overlay.enterValue (categoryField, {}, [asked] (const juce::String& typed) {
        if (const auto param = asked.lock())
            param->set (typed);

        return true;
    });
}

void SavePopup::paint (juce::Graphics& g)
{
    Popup::paint (g);
    paintHeading (g, getCanvas().boundsOf ("SaveTitle") - getCanvas().boundsOf (getElement()).getPosition());
}

bool SavePopup::keyPressed (const juce::KeyPress& key)
{
    return key == juce::KeyPress::escapeKey && (close(), true);
}
} // namespace Zn::GUI
