// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/Workspace.h"

#include "Platform/Foundation/Services.h"

void Platform::noteFileSystemChanged(const QString& path) {
    if (auto* workspace = services().workspace)
        workspace->noteFileSystemChanged(path);
}

// Here and not in the file that contains the code of moc for all classes: a program that only needs this class would be
// linked with all of them.
#include "moc_Workspace.cpp"
