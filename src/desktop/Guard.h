#pragma once

#include "files/FileError.h"

class QWidget;

namespace iceline::desktop {

/// Tells the user what went wrong with a file.
void showFileError(QWidget* parent, const FileError& error);

/// The edge of an operation: runs it, and shows a file error as a message. False when there was one.
template <class Procedure>
bool guarded(QWidget* parent, Procedure procedure) {
    try {
        procedure();
        return true;
    } catch (const FileError& error) {
        showFileError(parent, error);
        return false;
    }
}

} // namespace iceline::desktop
