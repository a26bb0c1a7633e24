#pragma once

#include "Parameters/DefaultGesture.h"

namespace Zn::Undo
{
class Interface;

/** A button that goes one step through the history: on while it can, and setting it on does. It is nothing that could
    be saved. Thread: message.
*/
class HistoryParam : public Parameters::DefaultGesture
{
public:
    float getNormalised() const override { return isPossible() ? 1.0f : 0.0f; }
    void setRawNormalised (float normalised) override { setNormalisedNotifying (normalised); }
    void setInt (int value) override { setNormalisedNotifying (static_cast<float> (value)); }
    void setDouble (double value) override { setNormalisedNotifying (static_cast<float> (value)); }
    void reflect (Reflector&) override {}
    juce::String getTextForNormalised (float normalised) const override;
    juce::String getCurrentText() const override { return getTextForNormalised (getNormalised()); }
    void setFromText (const juce::String& text) override;
    void setNormalisedNotifying (float normalised) override;
    float getFloat() const override { return getNormalised(); }
    bool isHostVisible() const override { return false; }
    bool hasSteps() const override { return true; }
    int getNumSteps() const override { return 1; }
    float getDefault() const override { return 0.0f; }

protected:
    explicit HistoryParam (Interface& undoToUse) noexcept : undo (undoToUse) {}

    virtual bool isPossible() const = 0;
    virtual void perform() = 0;

    Interface& undo;
};

class UndoParam : public HistoryParam
{
public:
    explicit UndoParam (Interface& undoToUse) noexcept : HistoryParam (undoToUse) {}

    juce::String getName() const override { return "Undo"; }

private:
    bool isPossible() const override;
    void perform() override;
};

class RedoParam : public HistoryParam
{
public:
    explicit RedoParam (Interface& undoToUse) noexcept : HistoryParam (undoToUse) {}

    juce::String getName() const override { return "Redo"; }

private:
    bool isPossible() const override;
    void perform() override;
};
} // namespace Zn::Undo
