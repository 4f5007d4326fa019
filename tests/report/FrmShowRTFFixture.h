// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/ProgramState.h"
#include "report/frmShowRTF.h"
#include "tests/report/PrintableBox.h"
#include "tests/support/TestFiles.h"

#include <string>
#include <string_view>

namespace orvel {

// The viewer, with a program directory of its own.
class FrmShowRTF : public testing::PrintingTest, public frmShowRTF::View {
protected:
    FrmShowRTF() { Program().programDirectory = folder.Path(); }

    void Show(std::string_view what) { window.ShowTopic(what); }

    testing::TemporaryFolder folder;
    frmShowRTF window{*this};

private:
    RichTextBox& TextBox() override { return box; }
    void SetCaption(const std::string& caption) override { surroundings.Note("caption " + caption); }
    void Show() override { surroundings.Note("show"); }
    void Unload() override { surroundings.Note("unload"); }
};

} // namespace orvel
