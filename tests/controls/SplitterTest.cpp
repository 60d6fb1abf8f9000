#include "controls/Splitter.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

TEST(Splitter, keepsTheShareThatItWasGiven) {
    Splitter splitter(nullptr, u"vbuSplitter2", Splitter::ByHeight);
    QWidget page(&splitter);
    QWidget note(&splitter);
    splitter.resize(300, 800);
    splitter.show();
    splitter.setShare(0.75);
    EXPECT_EQ(splitter.Position(), 600);
    splitter.resize(300, 400);
    splitter.setShare(splitter.share());
    EXPECT_EQ(splitter.Position(), 300);
    EXPECT_EQ(splitter.splitOrientation(), Splitter::ByHeight);
}

TEST(Splitter, measuresAlongItsSplit) {
    Splitter splitter(nullptr, u"vbuSplitter1", Splitter::ByWidth);
    splitter.resize(300, 800);
    EXPECT_EQ(splitter.length(), 300);
    EXPECT_EQ(splitter.splitOrientation(), Splitter::ByWidth);
    EXPECT_EQ(splitter.Position(), 0);
}
