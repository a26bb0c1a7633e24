#pragma once

#include "GUI/Widgets/EditorContext.h"
#include "Parameters/Connector.h"

namespace Zn::GUI
{
/** When patterns switch: at the next of the lengths that the host knows, or at once, which it does not. Choosing a
    length ends "at once". Thread: message.
*/
class QuantizeParam : public Parameters::Connector
{
public:
    explicit QuantizeParam (EditorContext& contextToUse);

    void setRawNormalised (float normalised) override;
    void setInt (int value) override;
    void setBool (bool value) override;
    void setDouble (double value) override;
    void setFromText (const juce::String& text) override;
    void setNormalisedNotifying (float normalised) override;

    /** "now" while nothing waits. */
    juce::String getCurrentText() const override;

    /** -1 then, so that it reads as another value. */
    float getFloat() const override;

    Parameters::MenuItems::Item getMenuChoices() override;

private:
    bool waits() const { return context.state().liveSlots->enable.load(); }
    void setWaiting (bool shouldWait);

    EditorContext& context;
};
} // namespace Zn::GUI
