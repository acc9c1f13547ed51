// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Burns an image file to a file that libburn uses like a drive: the real library, without a burner.
#include "Platform/Disc/linux/LinuxDiscRecording.h"
#include "Platform/Foundation/NotificationCenter.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Media/linux/MediaFilesLinux.h"
#include "Source/CDBurn/BurnControl.h"
#include "tests/support/WaitFor.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace Platform;

namespace {

class OneFile final : public DriveSource {
public:
    explicit OneFile(QString path) : path_(std::move(path)) {}
    std::vector<FoundDrive> drives() override {
        return {{u"stdio:"_s + path_, u"file"_s, u"File Drive"_s, DRDeviceMediaStateMediaPresent, true, false, 0}};
    }
    int openError(const QString&) override { return 0; }
    void setQuiet(const QString&, bool) override {}

private:
    QString path_;
};

class DVDBurnTest : public testing::Test {
protected:
    DVDBurnTest() {
        services().discRecording = &discs;
        services().diskArbitration = disks.get();
        image.resize(6 * 2048 * 1024);
        for (char& byte : image)
            byte = char(QRandomGenerator::global()->bounded(256));
        QFile file(folder.filePath(u"image.iso"_s));
        if (file.open(QIODevice::WriteOnly))
            file.write(image);
    }
    static std::unique_ptr<NotificationCenter::Observation> count(const QString& name, int& times) {
        return NotificationCenter::defaultCenter().addObserver(
            name, [&times](const QString&, const Dictionary&) { ++times; });
    }

    ServicesScope scope;
    QTemporaryDir folder;
    QByteArray image;
    QString disc = folder.filePath(u"disc"_s);
    std::unique_ptr<MediaFiles> files = createMediaFiles();
    std::unique_ptr<DiskArbitration> disks = createDiskArbitration();
    LinuxDiscRecording discs{*files, [this](const std::function<void()>&) { return std::make_unique<OneFile>(disc); }};
};

TEST_F(DVDBurnTest, WritesTheImageFileByteForByte) {
    int finished = 0;
    int failed = 0;
    int progress = 0;
    const auto one = count(BurnControlBurnDidFininshNotification, finished);
    const auto two = count(BurnControlBurnDidFailedNotification, failed);
    const auto three = count(BurnControlBurnProgressNotification, progress);
    BurnControl control;
    control.setUseCDRom(0);
    ASSERT_TRUE(waitFor([&] { return discs.devices()[0]->status().mediaState == DRDeviceMediaStateMediaPresent; }));
    control.beginDVDMediaBurn(folder.filePath(u"image.iso"_s));
    ASSERT_TRUE(waitFor([&] { return finished + failed > 0; }));
    EXPECT_EQ(finished, 1) << qPrintable(control.failureReason());
    EXPECT_GT(progress, 0);
    QFile written(disc);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_EQ(written.read(image.size()), image);
}

TEST_F(DVDBurnTest, RefusesAMissingImageFileAndAnAudioCD) {
    int failed = 0;
    const auto observation = count(BurnControlBurnDidFailedNotification, failed);
    BurnControl control;
    control.setUseCDRom(0);
    control.beginDVDMediaBurn(folder.filePath(u"none.iso"_s));
    ASSERT_TRUE(waitFor([&] { return failed == 1; }));
    EXPECT_EQ(control.failureReason(), folder.filePath(u"none.iso"_s) + u": no such file"_s);
}

} // namespace
