#pragma once

#include <QRadioButton>

#include <algorithm>
#include <cstddef>
#include <iterator>

/// A group of radio buttons as a table. Each row has at least the form's member `button` and the value `stored` that
/// the database has for it.

/// Checks the button of a stored value. A value that no button stands for leaves the group as it is.
template <typename Form, typename Choice, std::size_t count>
void checkStored(const Form& form, const Choice (&choices)[count], int stored)
{
    for (const Choice& choice : choices) {
        if (choice.stored == stored) {
            (form.*choice.button)->setChecked(true);
        }
    }
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
