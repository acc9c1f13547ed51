// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/ReplacementFile.h"

namespace CommandLine {

/// A hidden file beside a target. It takes the target's name when it is complete, and is removed otherwise.
class PartFile {
public:
    /// @p overwrite allows it to replace an existing target at the end; otherwise the existing file is kept and
    /// problem() reports it.
    PartFile(const QString& target, bool overwrite);

    /// Why the target cannot be written now; empty when it can.
    [[nodiscard]] QString problem() const;
    /// The path to write to. It has the target's extension, because writers choose the format by it.
    [[nodiscard]] QString path() const { return file_.path(); }
    /// Gives the file its final name. @return the error; empty on success
    [[nodiscard]] QString commit();

private:
    QString target_;
    bool overwrite_;
    Platform::ReplacementFile file_;
};

} // namespace CommandLine
