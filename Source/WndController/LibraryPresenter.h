// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

#include <QObject>
#include <QVariantList>

class AudioFilterController;
class AudioTableModel;
class AudioWaveViewController;
class CustomSound;
class LibraryOutlineModel;
class MediaLibrary;
class MediaLibraryNode;
class LibrarySearch;
class MissingFiles;
class QItemSelectionModel;
class QTableView;
class QTreeView;
class TitleEdit;

/// The library side of the main window: what the two views show and select, what the selection allows, and the commands
/// on it. Controls bind to the properties; each property is announced when it may have changed, and is then read again.
/// Main thread.
class LibraryPresenter : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool tableViewPlayEnable READ tableViewPlayEnable NOTIFY tableViewPlayEnableChanged)
    Q_PROPERTY(bool tableViewShowEnable READ tableViewShowEnable NOTIFY tableViewShowEnableChanged)
    Q_PROPERTY(bool tableViewDeleteEnable READ tableViewDeleteEnable NOTIFY tableViewDeleteEnableChanged)
    Q_PROPERTY(QVariantMap tableViewSelectionAudio READ tableViewSelectionAudio NOTIFY tableViewSelectionAudioChanged)
    Q_PROPERTY(bool tableViewSelectionAudioIsRingtone READ tableViewSelectionAudioIsRingtone NOTIFY
                   tableViewSelectionAudioIsRingtoneChanged)
    Q_PROPERTY(bool tableViewCanEditSelectionAudioRecord READ tableViewCanEditSelectionAudioRecord NOTIFY
                   tableViewCanEditSelectionAudioRecordChanged)
    Q_PROPERTY(bool canFilterAudio READ canFilterAudio NOTIFY canFilterAudioChanged)
    Q_PROPERTY(bool isPlaySoundButtonEnable READ isPlaySoundButtonEnable NOTIFY isPlaySoundButtonEnableChanged)
    Q_PROPERTY(
        bool isPlaySoundPlaying READ isPlaySoundPlaying WRITE setIsPlaySoundPlaying NOTIFY isPlaySoundPlayingChanged)

public:
    /// Whether a recording is active; supplied by the recording side.
    using IsRecording = std::function<bool()>;

    /// Sets the models of the two views and follows their selections.
    LibraryPresenter(MediaLibrary& library, QTreeView& outline, QTableView& table, AudioWaveViewController& display,
                     AudioFilterController& filter, IsRecording isStateAudioRecord, QObject* parent = nullptr);
    ~LibraryPresenter() override;

    /// Expands the groups and selects the first node in the first group.
    void updateDefaultListStyle();

    // ---- changes of the library; each ends with reloadFromMediaLibrary() --------------------------------------------
    /// A copy of the tags as an entry: with the path, and with a new identity when it has none.
    [[nodiscard]] static Dictionary makeAudioLibraryDataByFile(const QString& path, const Dictionary& tags);
    void addRecordFile(const QString& path, const Dictionary& tags);
    void addRingtoneFile(const QString& path, const Dictionary& tags);
    /// Adds a ringtone (by extension) or a recording; an entry with the same identity is replaced.
    void updateFile(const QString& path, const Dictionary& tags);
    /// Removes the entries and deletes their files.
    void removeMediaLibraryArray(const QVariantList& entries);
    /// Announces what can be filtered now; the views follow the library by themselves.
    void reloadFromMediaLibrary();

    // ---- selection --------------------------------------------------------------------------------------------------
    /// Null when no node is selected.
    [[nodiscard]] const MediaLibraryNode* libraryViewSelectedNode() const;
    [[nodiscard]] QVariantList tableViewSelectionAudioArray() const;
    /// Empty when the selected row does not belong to the node.
    [[nodiscard]] Dictionary tableViewSelectionAudio() const;
    [[nodiscard]] QString tableViewSelectionAudioPath() const;
    [[nodiscard]] qsizetype selectedRowCount() const;
    /// How long the selected recordings are together, in seconds.
    [[nodiscard]] double selectedSeconds() const;
    /// Selects the entry of a file, in the current node or else in the node that lists all files of its kind.
    bool selectFile(const QString& path);

    [[nodiscard]] bool tableViewPlayEnable() const;
    [[nodiscard]] bool tableViewShowEnable() const;
    [[nodiscard]] bool tableViewDeleteEnable() const;
    [[nodiscard]] bool tableViewSelectionAudioIsRingtone() const;
    [[nodiscard]] bool tableViewCanEditSelectionAudioRecord() const;
    /// Whether two recordings or more are selected, and nothing records.
    [[nodiscard]] bool canJoinSelection() const;
    [[nodiscard]] bool canFilterAudio() const;
    /// Whether there are neither recordings nor ringtones.
    [[nodiscard]] bool libraryIsEmpty() const;
    [[nodiscard]] bool isPlaySoundButtonEnable() const;
    [[nodiscard]] bool isPlaySoundPlaying() const;
    /// The file of the display's sound, also while it is paused or stopped; empty without a sound.
    [[nodiscard]] QString playingPath() const;
    /// The library entry of the display's sound; empty without a sound.
    [[nodiscard]] Dictionary playingEntry() const { return playingEntry_; }
    /// Announces the two playing properties; the argument is ignored, the value is read from the sound.
    void setIsPlaySoundPlaying(bool ignored);

    // ---- announcements ----------------------------------------------------------------------------------------------
    void updateTableViewActionEnable();
    void updateRecordStateAction();
    void updatePlaySoundState();
    /// updatePlaySoundState() on the main thread, from any thread.
    void updatePlaySoundButton();

    // ---- actions ----------------------------------------------------------------------------------------------------
    /// Loads the entry's file as the display's sound and plays it.
    void playSoundFile(const Dictionary& entry);
    /// Loads the entry's file without playing it. playSoundButtonAction() starts it.
    void takeUpSoundFile(const Dictionary& entry);
    void playSoundButtonAction();
    void tableViewDoubleAction();
    void stopSoundPlaying();
    void deleteAudioFile();
    void revealInFinder();
    void openIniTunes();

    [[nodiscard]] AudioTableModel& tableModel() { return *tableModel_; }
    [[nodiscard]] LibrarySearch& search() { return *search_; }
    [[nodiscard]] LibraryOutlineModel& outlineModel() { return *outlineModel_; }

Q_SIGNALS:
    void tableViewPlayEnableChanged();
    void tableViewShowEnableChanged();
    void tableViewDeleteEnableChanged();
    void tableViewSelectionAudioChanged();
    void tableViewSelectionAudioIsRingtoneChanged();
    void tableViewCanEditSelectionAudioRecordChanged();
    void canFilterAudioChanged();
    void isPlaySoundButtonEnableChanged();
    void isPlaySoundPlayingChanged();
    /// The sound was replaced, started, paused, resumed or ended, or its entry changed. Not emitted periodically,
    /// unlike isPlaySoundPlayingChanged().
    void playbackChanged();
    /// A request of the user failed; one sentence.
    void problem(const QString& text);
    /// The search was cleared, because a file that it hides must be shown.
    void searchEnded();

private:
    void outlineSelectionDidChange();
    void show(const std::shared_ptr<const MediaLibraryNode>& node, bool keepSelection);
    void tableViewSelectionDidChange();
    [[nodiscard]] int selectedRow() const;
    void selectRow(int row);
    [[nodiscard]] CustomSound* currentSound() const;
    /// Updates path and titles of the sound from its entry: its file may have been renamed during playback.
    void followPlayingEntry();
    void takeUp(const Dictionary& entry);
    /// Calls updatePlaySoundState() and emits playbackChanged().
    void playbackDidChange();
    /// The sound stops being the current one, so that Play applies to the selection again.
    void letSoundGo();
    /// Releases a sound after it has ended; not inside its own signal.
    void watchForTheEnd(const std::shared_ptr<CustomSound>& sound);
    /// Stops the current sound; it remains the current one.
    void stopSound();
    /// Reports why a sound does not play; nothing when it does.
    void sayWhyNothingPlays(const CustomSound& sound);

    MediaLibrary& library_;
    QTreeView& outline_;
    QTableView& table_;
    AudioWaveViewController& display_;
    AudioFilterController& filter_;
    IsRecording isStateAudioRecord_;
    bool stopping_ = false; ///< the sound was stopped by the user, it did not reach its end
    Dictionary playingEntry_;
    QString playingKey_; ///< identity of the current sound's entry
    std::unique_ptr<MissingFiles> missing_;
    std::unique_ptr<LibraryOutlineModel> outlineModel_;
    std::unique_ptr<AudioTableModel> tableModel_;
    std::unique_ptr<TitleEdit> titleEdit_;
    std::unique_ptr<LibrarySearch> search_;
};
