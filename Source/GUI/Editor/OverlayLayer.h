#pragma once

#include "Foundation/Events/Listener.h"
#include "GUI/Editor/Cards.h"
#include "GUI/Editor/Tooltips.h"
#include "GUI/Editor/ValueEntry.h"
#include "GUI/Widgets/Card.h"
#include "GUI/Widgets/Edits.h"
#include "GUI/Widgets/Overlay.h"

namespace Zn::GUI
{
/** Lies over the whole page, lets the pointer through where it is empty, and holds what comes up. Thread: message. */
class OverlayLayer : public juce::Component, public Overlay
{
public:
    OverlayLayer (juce::Component& pageToCover,
                  AssetScheme::Canvas& canvasToUse,
                  UserSettings& settingsToUse,
                  Edits& editsToUse,
                  Events::Broadcaster& polls,
                  bool& keysInUseToTell);
    ~OverlayLayer() override;

    void openPopup (std::unique_ptr<juce::Component> newPopup) override;
    void closePopup() override;
    juce::Component* getPopup() const noexcept override { return popup.get(); }
    void showMenu (const Parameters::MenuItems::Item& menu, juce::Component* beside) override;
    void showMenu (const juce::PopupMenu& menu,
                   juce::Component* beside,
                   std::function<void (int)> chosen) override;
    bool isMenuOpen() const noexcept override { return numMenus > 0; }
    void
    showReadout (const juce::String& name, const juce::String& value, juce::Point<int> onScreen) override;
    void hideReadout() override;
    void showMessage (const juce::String& text, const juce::String& actionText, CallbackFunc action) override;
    void showUndo (const juce::String& done) override;
    void announce (const juce::String& text) override
    {
        juce::AccessibilityHandler::postAnnouncement (
            text,
            juce::AccessibilityHandler::AnnouncementPriority::medium);
    }
    void enterValue (juce::Component& over,
                     const juce::String& text,
                     std::function<bool (const juce::String&)> accept,
                     CallbackFunc next) override;
    bool isEnteringValue() const noexcept override { return entry != nullptr; }

    /** Closes everything at once, menus too. */
    void closeAll();

    /** The line of the message that is shown; empty while there is none. */
    juce::String getMessage() const { return message.isVisible() ? message.getTitle() : juce::String(); }
    Tooltips& getTooltips() noexcept { return tooltips; }
    ValueEntry* getValueEntry() const noexcept { return entry.get(); }

    void resized() override;

private:
    /** Behind a pop-up: takes the clicks that are meant for what is under it. */
    struct Backdrop : juce::Component
    {
        explicit Backdrop (OverlayLayer& overlayToTell);
        void paint (juce::Graphics& g) override;
        void mouseDown (const juce::MouseEvent&) override { overlay.closePopup(); }

        OverlayLayer& overlay;
    };

    void poll();
    void focusPopup();
    void withdrawUndo();
    void closeEntry (ValueEntry::End end, const CallbackFunc& next);
    bool mayMove() const { return ! settings.get().reducedMotion; }

    juce::Component& page;
    AssetScheme::Canvas& canvas;
    UserSettings& settings;
    Edits& edits;
    bool& keysInUse;

    Backdrop backdrop { *this };
    std::unique_ptr<juce::Component> popup, closedPopup; // a closed one goes when none of its functions runs
    std::unique_ptr<CardShadow> popupShadow;
    juce::Component::SafePointer<juce::Component> focusBefore;

    std::unique_ptr<ValueEntry> entry, closedEntry;

    ReadoutCard readout { canvas };
    MessageCard message { canvas };
    CardShadow readoutShadow, messageShadow;
    juce::uint32 messageEnd = 0; // milliseconds
    bool offersUndo = false;     // the message does
    int numMenus = 0;            // that are open, or have yet to act
    Tooltips tooltips;
    Events::Listener canvasListener, pollListener, editListener;
};
} // namespace Zn::GUI
