#pragma once

#include <QRadioButton>

#include <algorithm>
#include <cstddef>
#include <iterator>

/// A group of radio buttons as a table. Each row has at least the form's member `button` and the value `stored` that
/// the database has for it.

/// Checks the button of a stored value and no other. False when no button stands for the value: then none is checked,
/// but a QButtonGroup that is exclusive keeps the button that it has.
template <typename Form, typename Choice, std::size_t count>
bool checkStored(const Form& form, const Choice (&choices)[count], int stored)
{
    bool found = false;
    for (const Choice& choice : choices) {
        QRadioButton* const button = form.*choice.button;
        const bool wanted = choice.stored == stored;
        // A button that excludes its neighbours refuses to be unchecked.
        button->setAutoExclusive(false);
        button->setChecked(wanted);
        button->setAutoExclusive(true);
        found = found || wanted;
    }
    return found;
}

/// The row of the button that is checked; null when none is.
template <typename Form, typename Choice, std::size_t count>
const Choice* checkedChoice(const Form& form, const Choice (&choices)[count])
{
    const Choice* const found = std::find_if(std::begin(choices), std::end(choices), [&form](const Choice& choice) {
        return (form.*choice.button)->isChecked();
    });
    return found == std::end(choices) ? nullptr : found;
}
