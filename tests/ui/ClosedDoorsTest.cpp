// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/support/TestFiles.h"
#include "tests/ui/WidgetTest.h"
#include "ui/RichTextEdit.h"

#include <QClipboard>
#include <QMimeData>
#include <array>
#include <gtest/gtest.h>
#include <string>
#include <sys/inotify.h>
#include <unistd.h>

// A text never makes the program open a file or an address.
namespace orvel {

namespace {

namespace fs = std::filesystem;

using testing::PutContents;

// A file that nobody may open.
class Bait {
public:
    explicit Bait(const fs::path& path) {
        PutContents(path, "bait");
        EXPECT_NE(::inotify_add_watch(events, path.c_str(), IN_OPEN), -1);
    }

    ~Bait() {
        std::array<char, 256> event{};
        EXPECT_EQ(::read(events, event.data(), event.size()), -1) << "somebody has opened it";
        ::close(events);
    }

    Bait(const Bait&) = delete;
    Bait& operator=(const Bait&) = delete;

private:
    int events = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
};

class ClosedDoors : public testing::WidgetTest {
protected:
    ClosedDoors() {
        box.resize(400, 300);
        ShowActive(box);
    }

    // Laid out and painted, as a text on the screen is.
    void Look() {
        QCoreApplication::processEvents();
        EXPECT_FALSE(box.grab().isNull());
    }

    void Paste(const char* format, const std::string& data) {
        auto* content = new QMimeData;
        // Programs offer their plain text, too.
        content->setText("plain");
        content->setData(format, QByteArray::fromStdString(data));
        QApplication::clipboard()->setMimeData(content);
        box.paste();
        Look();
    }

    testing::TemporaryFolder folder;
    const std::string path = (folder / "bait.png").native();
    const std::string address = "file://" + path;
    Bait bait{path};
    ui::RichTextEdit box;
};

TEST_F(ClosedDoors, ARichTextFileOpensNoOther) {
    for (const std::string& text : {
             R"({\rtf1 {\field{\*\fldinst INCLUDEPICTURE ")" + path + R"(" \\d}{\fldrslt shown}}})",
             R"({\rtf1 {\field{\*\fldinst INCLUDETEXT ")" + path + R"("}{\fldrslt shown}}})",
             R"({\rtf1 {\field{\*\fldinst HYPERLINK ")" + address + R"("}{\fldrslt shown}}})",
             R"({\rtf1 {\object\objautlink\objupdate{\*\objclass Word.Document}{\*\objdata )" + path +
                 R"(}{\result shown}}})",
             R"({\rtf1 {\*\template )" + path + R"(}{\*\subdocument )" + path + R"(}shown})",
             R"({\rtf1 {\pict{\*\blipuid )" + path + R"(}\linkself )" + path + R"(}shown})",
             R"({\rtf1 {\*\htmltag <img src=")" + address + R"(">}shown <img src=")" + address + R"(">})",
             "<html><head><link rel=stylesheet href=\"" + address + "\"></head><img src=\"" + address +
                 "\">shown</html>",
         }) {
        PutContents(folder / "document.rtf", text);
        box.Load(folder / "document.rtf");
        Look();
        EXPECT_NE(box.Text().find("shown"), std::string::npos) << text;
    }
}

TEST_F(ClosedDoors, WhatIsPastedOpensNoFile) {
    const std::string html = "<html><head><style>body { background: url(" + address +
                             ") }</style></head><body><img src=\"" + address + "\">shown</body></html>";
    for (const char* format : {"text/html", "text/plain", "text/rtf", "application/rtf", "text/markdown",
                               "application/vnd.oasis.opendocument.text"}) {
        Paste(format, html);
    }
    Paste("text/rtf", R"({\rtf1 {\field{\*\fldinst INCLUDEPICTURE ")" + path + R"("}{\fldrslt shown}}})");
    Paste("text/uri-list", address);
    EXPECT_NE(box.Text().find("shown"), std::string::npos);
}

TEST_F(ClosedDoors, ATextIsNoMarkup) {
    box.SetText("<img src=\"" + address + "\">");
    Look();
    EXPECT_EQ(box.Text(), "<img src=\"" + address + "\">");
}

} // namespace

} // namespace orvel
