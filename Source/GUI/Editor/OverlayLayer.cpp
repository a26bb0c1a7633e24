#include "GUI/Editor/OverlayLayer.h"

#include "GUI/Editor/Menus.h"
#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Widgets/Popup.h"

#include <utility>

namespace Zn::GUI
{
namespace
{
int milliseconds (std::string_view secondsConstant)
{
    return juce::roundToInt (1000.0f * AssetScheme::Base::get().constantOf (secondsConstant));
}

template <typename Card>
Card& addedTo (juce::Component& parent, Card& card)
{
    parent.addChildComponent (card);
    return card;
}
} // namespace

OverlayLayer::Backdrop::Backdrop (OverlayLayer& overlayToTell) : overlay (overlayToTell)
{
    setComponentID ("Backdrop");
    setAccessible (false);
}

void OverlayLayer::Backdrop::paint (juce::Graphics& g)
{
    const auto* const opened = dynamic_cast<const Popup*> (overlay.getPopup());

    if (opened != nullptr && opened->dimsPage())
        g.fillAll (AssetScheme::Base::get().colourOf ("LearnDim"));
}

OverlayLayer::OverlayLayer (juce::Component& pageToCover,
                            AssetScheme::Canvas& canvasToUse,
                            UserSettings& settingsToUse,
                            Edits& editsToUse,
                            Events::Broadcaster& polls,
                            bool& keysInUseToTell)
    : page (pageToCover)
    , canvas (canvasToUse)
    , settings (settingsToUse)
    , edits (editsToUse)
    , keysInUse (keysInUseToTell)
    , readoutShadow (addedTo (*this, readout), canvas)
    , messageShadow (addedTo (*this, message), canvas)
    , tooltips (pageToCover, *this, canvasToUse, settingsToUse, polls)
    , canvasListener (canvas, [this] { message.place(); }) // its size is known after that of the page
    , pollListener (polls, [this] { poll(); })
    , editListener (edits.getUndo(), [this] { withdrawUndo(); })
{
    setInterceptsMouseClicks (false, true);
    addChildComponent (backdrop, 0);
}

OverlayLayer::~OverlayLayer()
{
    closeAll();
}

void OverlayLayer::resized()
{
    backdrop.setBounds (getLocalBounds());
    tooltips.hide();
    closeEntry (ValueEntry::End::cancelled, {});
}

void OverlayLayer::closeAll()
{
    closePopup();
    closeEntry (ValueEntry::End::cancelled, {});
    closedPopup.reset();
    closedEntry.reset();
    message.setVisible (false);
    readout.setVisible (false);
    tooltips.hide();

    if (numMenus > 0)
        juce::PopupMenu::dismissAllActiveMenus();
}

void OverlayLayer::poll()
{
    closedPopup.reset();
    closedEntry.reset();

    if (message.isVisible() && juce::Time::getMillisecondCounter() > messageEnd && ! message.isBusy())
        message.setVisible (false);
}

//======================================================================================================================
void OverlayLayer::openPopup (std::unique_ptr<juce::Component> newPopup)
{
    auto* const focused = juce::Component::getCurrentlyFocusedComponent();
    const auto isReplaced = popup != nullptr;

    if (! isReplaced)
        focusBefore = page.isParentOf (focused) ? focused : &page;

    closedPopup = std::exchange (popup, std::move (newPopup));

    if (closedPopup != nullptr)
        removeChildComponent (closedPopup.get());

    tooltips.hide();
    addAndMakeVisible (*popup);
    popupShadow = std::make_unique<CardShadow> (*popup, canvas);
    backdrop.setVisible (true);
    backdrop.repaint();
    popupShadow->toFront (false);
    popup->toFront (false);
    message.toFront (false);

    if (! isReplaced)
        fadeIn (*popup, *popupShadow, settings);

    focusPopup();
}

void OverlayLayer::focusPopup()
{
    const auto traverser = popup->createKeyboardFocusTraverser();
    auto* first = traverser != nullptr ? traverser->getDefaultComponent (popup.get()) : nullptr;

    if (first == nullptr || ! popup->isParentOf (first))
    {
        popup->setWantsKeyboardFocus (true);
        first = popup.get();
    }

    if (isShowing() && ! popup->hasKeyboardFocus (true))
        first->grabKeyboardFocus();
}

void OverlayLayer::closePopup()
{
    if (popup == nullptr)
        return;

    const auto hadFocus = popup->hasKeyboardFocus (true); // fading out takes it away

    if (popup->isShowing() && mayMove())
        juce::Desktop::getInstance().getAnimator().fadeOut (popup.get(), milliseconds ("PopupFadeSeconds"));

    popupShadow.reset();
    closedPopup = std::move (popup);
    removeChildComponent (closedPopup.get());
    backdrop.setVisible (false);

    if (auto* const before = focusBefore.getComponent(); before != nullptr && hadFocus)
        before->grabKeyboardFocus();
}

//======================================================================================================================
void OverlayLayer::showMenu (const Parameters::MenuItems::Item& menu, juce::Component* beside)
{
    showMenu (popupMenuOf (menu, *this), beside, {});
}

void OverlayLayer::showMenu (const juce::PopupMenu& menu,
                             juce::Component* beside,
                             std::function<void (int)> chosen)
{
    hideReadout();
    tooltips.hide();

    if (juce::Desktop::getInstance().getDisplays().displays.isEmpty())
        return; // JUCE's menus need a screen

    ++numMenus;

    const auto options = menuOptions (menu, page, beside, canvas.boundsOf ("ControlMenu").getWidth());
    auto shown = menu;
    shown.setLookAndFeel (&page.getLookAndFeel()); // it would look for one before it lies in the page
    shown.showMenuAsync (options, [safe = SafePointer (this), chosenFunc = std::move (chosen)] (int result) {
        if (safe == nullptr)
            return;

        juce::MessageManager::callAsync ([safe] { // after the line's own action, which waits in the queue
            if (safe != nullptr)
                --safe->numMenus;
        });

        if (chosenFunc != nullptr)
            chosenFunc (result);
    });
}

//======================================================================================================================
void OverlayLayer::showReadout (const juce::String& name,
                                const juce::String& value,
                                juce::Point<int> onScreen)
{
    tooltips.hide();
    readout.show (name, value, getLocalPoint (nullptr, onScreen));
    readout.setVisible (true);
    readout.toFront (false);
}

void OverlayLayer::hideReadout()
{
    readout.setVisible (false);
}

void OverlayLayer::showMessage (const juce::String& text, const juce::String& actionText, CallbackFunc action)
{
    offersUndo = false;
    message.show (text, actionText, std::move (action), [this] { message.setVisible (false); });
    message.setVisible (true);
    message.toFront (false);
    fadeIn (message, messageShadow, settings);

    messageEnd = juce::Time::getMillisecondCounter() + juce::uint32 (milliseconds ("MessageSeconds"));
    announce (text);
}

void OverlayLayer::showUndo (const juce::String& done)
{
    edits.finish();
    showMessage (done, "Undo", [this] {
        edits.finish(); // what is still turned at is a later step

        if (offersUndo)
            edits.undo();
    });
    offersUndo = true;
}

void OverlayLayer::withdrawUndo()
{
    if (std::exchange (offersUndo, false))
        message.setVisible (false);
}

//======================================================================================================================
void OverlayLayer::enterValue (juce::Component& over,
                               const juce::String& text,
                               std::function<bool (const juce::String&)> accept,
                               CallbackFunc next)
{
    closeEntry (ValueEntry::End::cancelled, {});
    tooltips.hide();

    ValueEntry::Asked asked { .text = text,
                              .accept = std::move (accept),
                              .finished = [this, nextFunc = std::move (next)] (ValueEntry::End end) {
                                  const auto byKey = entry != nullptr && entry->hasKeyboardFocus (true);
                                  keysInUse = keysInUse || byKey;
                                  closeEntry (end, nextFunc);
                              } };

    entry = std::make_unique<ValueEntry> (canvas, over, mayMove(), std::move (asked));
    addAndMakeVisible (*entry);

    if (isShowing())
        entry->grabKeyboardFocus();
}

void OverlayLayer::closeEntry (ValueEntry::End end, const CallbackFunc& next)
{
    if (entry == nullptr)
        return;

    const auto nextFunc = next; // the entry holds the one it was given
    auto* const control = entry->getControl();
    const auto hadFocus = entry->hasKeyboardFocus (true);
    closedEntry = std::move (entry);
    removeChildComponent (closedEntry.get());

    if (hadFocus && control != nullptr)
        control->grabKeyboardFocus();

    if (end == ValueEntry::End::keptForNext && nextFunc != nullptr)
        nextFunc();
}
} // namespace Zn::GUI
