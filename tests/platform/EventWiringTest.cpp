#include "HostFixture.h"

#include "EventWiring.h"
#include "QsError.h"
#include "mErrorHandling.h"

#include <QPushButton>
#include <QTest>

using namespace qs;
using namespace qs::test;

namespace {

// A form-like owner with one button, wired the way every window wires its controls.
class Boundary : public HostFixture {
protected:
    void SetUp() override {
        HostFixture::SetUp();
        owner.setObjectName("frmProbe");
        button = new QPushButton("Go", &owner);
        owner.show();
    }
    void wire(std::function<void()> body) {
        Wire(&owner, button, &QPushButton::clicked, "cmdGo_Click", std::move(body));
    }
    QWidget owner;
    QPushButton* button = nullptr;
};

TEST_F(Boundary, WhatEscapesAHandlerIsReportedUnderTheFormAndHandlerAndGoesNoFurther) {
    struct Case {
        std::function<void()> body;
        QString text;
    };
    const Case cases[] = {
        {[] { throw QsError(3021, "cLibraryService.Save;", "gone"); }, "Error Number: 3021"},
        {[] { throw std::runtime_error("plain"); }, "Error Description: plain"},
        {[] { throw 7; }, "Error Description: Internal error"},
    };
    for (const Case& c : cases) {
        wire(c.body);
        hostScript.expectMsgBox(c.text, vbOK);
        QTest::mouseClick(button, Qt::LeftButton);
        button->disconnect();
        ASSERT_FALSE(hostScript.msgBoxes().isEmpty());
        EXPECT_TRUE(hostScript.msgBoxes().last().title.endsWith("frmProbe:cmdGo_Click;"))
            << hostScript.msgBoxes().last().title.toStdString();
    }
    EXPECT_EQ(WiredHandler(button), "cmdGo_Click");
}

TEST_F(Boundary, AFailingReportStopsAtTheBoundaryToo) {
    // A log path in a missing folder makes DisplayErrInfo raise again after its box.
    gstrLogFile = home->file("no/such/folder/Quillstone.log");
    glngLogMode = 1;
    wire([] { throw QsError(5, "x", "y"); });
    hostScript.answerMsgBox(vbOK);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(hostScript.msgBoxes().size(), 1);
}

TEST_F(Boundary, AScriptedEndStopsTheHandlerAndIsRecorded) {
    bool after = false;
    wire([&] {
        host().endProcess();
        after = true;
    });
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(hostScript.ended());
    EXPECT_FALSE(after);
}

TEST_F(Boundary, AControlEventPassesItsArgumentsThrough) {
    std::function<void(int& keyCode, int shift)> keyDown;
    int seenShift = -1;
    Wire(&owner, keyDown, "txtGo_KeyDown", [&](int& keyCode, int shift) {
        seenShift = shift;
        keyCode = 0;
    });
    int key = 112;
    keyDown(key, 2);
    EXPECT_EQ(key, 0);
    EXPECT_EQ(seenShift, 2);
}

} // namespace
