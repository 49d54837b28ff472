#pragma once

#include <exception>

class QWidget;

namespace iceline::desktop {

/// Tells the user what went wrong.
void showError(QWidget* parent, const std::exception& error);

/// The edge of an operation: runs it, and shows an error as a message. False when there was one.
template <class Procedure>
bool guarded(QWidget* parent, Procedure procedure) {
    try {
        procedure();
        return true;
    } catch (const std::exception& error) {
        showError(parent, error);
        return false;
    }
}

} // namespace iceline::desktop
