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

/// What the short-recording filter calls on its owner.
class AudioFilterControllerDelegate {
public:
    virtual ~AudioFilterControllerDelegate() = default;
    /// Removes the entries and their files.
    virtual void removeMediaLibraryArray(const QVariantList& /*entries*/) {}
};

/// The window that lists short recordings and removes the ticked ones after a question. The window is created each time
/// it is shown. Main thread.
class AudioFilterController : public QObject {
    Q_OBJECT
    Q_PROPERTY(int lessThanSecond READ lessThanSecond WRITE setLessThanSecond NOTIFY lessThanSecondChanged)
public:
    explicit AudioFilterController(QObject* parent = nullptr);
    ~AudioFilterController() override;

    [[nodiscard]] static QString windowNibName();
    [[nodiscard]] AudioFilterControllerDelegate* delegate() const { return delegate_; }
    void setDelegate(AudioFilterControllerDelegate* delegate) { delegate_ = delegate; }

    /// The window works on copies of these entries.
    void setAudioArray(const QVariantList& entries);
    [[nodiscard]] int lessThanSecond() const { return lessThanSecond_; }
    /// Shows the entries of at most this many whole seconds (below 1: all entries) and ticks the shown ones.
    void setLessThanSecond(int seconds);
    [[nodiscard]] FilteredAudioModel& tableArrayControler() const { return *tableArrayControler_; }

    /// Runs the window above @p owner; returns when it closes.
    void showWindow(QWidget* owner = nullptr);
    /// Creates the window without showing it.
    EditDialog& makeWindow(QWidget* owner = nullptr);
    /// Null while the window is closed.
    [[nodiscard]] EditDialog* window() const { return window_.get(); }
    void closeWindow();

    /// Asks whether to remove the entries; true only when the user chose to remove them.
    bool runRemoveAudioAlert();
    /// Asks, hands the ticked entries to the delegate, and closes the window.
    void removeAudio();
    /// Forwards to the delegate.
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
