#pragma once

#include "GUI/Widgets/Overlay.h"

#include <stdexcept>

namespace Zn::Tests
{
/** Writes down what would come up above an editor, and shows nothing. */
struct RecordedOverlay : GUI::Overlay
{
    void openPopup (std::unique_ptr<juce::Component>) override {}
    void closePopup() override {}
    juce::Component* getPopup() const noexcept override { return nullptr; }

    void showMenu (const Parameters::MenuItems::Item& newMenu, juce::Component*) override
    {
        choices = newMenu;
    }

    void
    showMenu (const juce::PopupMenu& newMenu, juce::Component*, std::function<void (int)> newChosen) override
    {
        menu = newMenu;
        chosen = std::move (newChosen);
    }

    bool isMenuOpen() const noexcept override { return menuIsOpen; }

    void showReadout (const juce::String&, const juce::String& value, juce::Point<int>) override
    {
        readout = value;
    }

    void hideReadout() override { readout.clear(); }

    void showMessage (const juce::String& text, const juce::String&, CallbackFunc) override
    {
        message = text;
    }

    void showUndo (const juce::String& done) override { message = done; }
    bool isEnteringValue() const noexcept override { return false; }

    void announce (const juce::String& text) override { announced.add (text); }

    void enterValue (juce::Component& over,
                     const juce::String& text,
                     std::function<bool (const juce::String&)> newAccept,
                     CallbackFunc newNext) override
    {
        enteredOver = over.getComponentID();
        offered = text;
        accept = std::move (newAccept);
        next = std::move (newNext);
    }

    /** Chooses the line with a text, in sub-menus too; throws when there is none that can be chosen. */
    void choose (const juce::String& text) const
    {
        for (juce::PopupMenu::MenuItemIterator lines (menu, true); lines.next();)
            if (lines.getItem().text == text && lines.getItem().isEnabled && lines.getItem().itemID > 0)
                return chosen (lines.getItem().itemID);

        throw std::runtime_error (("The menu has no " + text).toStdString());
    }

    Parameters::MenuItems::Item choices;
    juce::PopupMenu menu;
    bool menuIsOpen = false;
    std::function<void (int)> chosen; // of the menu
    juce::String readout, message;
    juce::StringArray announced;

    juce::String enteredOver, offered; // by the text entry
    std::function<bool (const juce::String&)> accept;
    CallbackFunc next;
};
} // namespace Zn::Tests
