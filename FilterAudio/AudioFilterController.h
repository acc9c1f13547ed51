// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QVariantList>

#include <memory>

class EditDialog;
class FilteredAudioModel;
class QWidget;
namespace Ui {
class AudioFilterController;
}

/// What the short-recording filter needs of its owner.
class AudioFilterControllerDelegate {
public:
    virtual ~AudioFilterControllerDelegate() = default;
    /// Removes the entries and their files.
    virtual void removeMediaLibraryArray(const QVariantList& /*entries*/) {}
};

/// The window that shows the short ones of some recordings and removes those that are ticked, after a question. The
/// window is made anew each time it is shown. Main thread.
class AudioFilterController : public QObject {
    Q_OBJECT
    Q_PROPERTY(int lessThanSecond READ lessThanSecond WRITE setLessThanSecond NOTIFY lessThanSecondChanged)
public:
    explicit AudioFilterController(QObject* parent = nullptr);
    ~AudioFilterController() override;

    [[nodiscard]] static QString windowNibName();
    [[nodiscard]] AudioFilterControllerDelegate* delegate() const { return delegate_; }
    void setDelegate(AudioFilterControllerDelegate* delegate) { delegate_ = delegate; }

    /// The window works on copies of these.
    void setAudioArray(const QVariantList& entries);
    [[nodiscard]] int lessThanSecond() const { return lessThanSecond_; }
    /// Shows the entries of at most that many whole seconds, below 1 all of them, and ticks what is shown.
    void setLessThanSecond(int seconds);
    [[nodiscard]] FilteredAudioModel& tableArrayControler() const { return *tableArrayControler_; }

    /// Runs the window above @p owner; returns when it closes.
    void showWindow(QWidget* owner = nullptr);
    /// Makes the window without showing it.
    EditDialog& makeWindow(QWidget* owner = nullptr);
    /// Null while there is none.
    [[nodiscard]] EditDialog* window() const { return window_.get(); }
    void closeWindow();

    /// Asks whether the items may go; true only when the user chose to remove them.
    bool runRemoveAudioAlert();
    /// Asks, hands the ticked entries to the delegate, and closes the window.
    void removeAudio();
    /// To the delegate.
    void removeMediaLibraryArray(const QVariantList& entries);

Q_SIGNALS:
    void lessThanSecondChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void awakeFromNib();
    void bindControls();
    void showTicked();

    std::unique_ptr<FilteredAudioModel> tableArrayControler_;
    int lessThanSecond_ = 10;
    AudioFilterControllerDelegate* delegate_ = nullptr;
    std::unique_ptr<EditDialog> window_;
    std::unique_ptr<Ui::AudioFilterController> ui_;
};
