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
class MissingFiles;
class QItemSelectionModel;
class QTableView;
class QTreeView;

/// The library side of the main window: what the two views show and select, what the selection allows, and the commands
/// on it. Controls bind to the properties; each is announced when it may have changed, as the table of a binding wants
/// it: the value is read afresh. Main thread.
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
    /// Whether a recording is active: the recording side answers it.
    using IsRecording = std::function<bool()>;

    /// Takes the two views over: gives them their models and follows their selections.
    LibraryPresenter(MediaLibrary& library, QTreeView& outline, QTableView& table, AudioWaveViewController& display,
                     AudioFilterController& filter, IsRecording isStateAudioRecord, QObject* parent = nullptr);
    ~LibraryPresenter() override;

    /// Expands the groups and selects the first node inside the first group.
    void updateDefaultListStyle();

    // ---- changes of the library; each ends with reloadFromMediaLibrary() --------------------------------------------
    /// A copy of the tags as an entry: with the path, and with an identity when it has none.
    [[nodiscard]] static Dictionary makeAudioLibraryDataByFile(const QString& path, const Dictionary& tags);
    void addRecordFile(const QString& path, const Dictionary& tags);
    void addRingtoneFile(const QString& path, const Dictionary& tags);
    /// A ringtone by its ending, a recording else; the entry of the same identity is replaced.
    void updateFile(const QString& path, const Dictionary& tags);
    /// Removes the entries and deletes their files.
    void removeMediaLibraryArray(const QVariantList& entries);
    void reloadFromMediaLibrary();

    // ---- selection --------------------------------------------------------------------------------------------------
    /// Null when no node is selected.
    [[nodiscard]] const MediaLibraryNode* libraryViewSelectedNode() const;
    [[nodiscard]] QVariantList tableViewSelectionAudioArray() const;
    /// Empty when the selected row is none of the node's.
    [[nodiscard]] Dictionary tableViewSelectionAudio() const;
    [[nodiscard]] QString tableViewSelectionAudioPath() const;
    /// Selects the entry of a file, in the node at hand or else in the one that lists all of its kind.
    bool selectFile(const QString& path);

    [[nodiscard]] bool tableViewPlayEnable() const;
    [[nodiscard]] bool tableViewShowEnable() const;
    [[nodiscard]] bool tableViewDeleteEnable() const;
    [[nodiscard]] bool tableViewSelectionAudioIsRingtone() const;
    [[nodiscard]] bool tableViewCanEditSelectionAudioRecord() const;
    [[nodiscard]] bool canFilterAudio() const;
    /// Whether there is neither a recording nor a ringtone.
    [[nodiscard]] bool libraryIsEmpty() const;
    [[nodiscard]] bool isPlaySoundButtonEnable() const;
    [[nodiscard]] bool isPlaySoundPlaying() const;
    /// The file of the display's sound, also while it is paused or stopped; empty without a sound.
    [[nodiscard]] QString playingPath() const;
    /// The entry that the display's sound was made of, as the library has it now; empty without a sound.
    [[nodiscard]] Dictionary playingEntry() const { return playingEntry_; }
    /// Only announces the two keys of playing; the value is the sound's own.
    void setIsPlaySoundPlaying(bool ignored);

    // ---- announcements ----------------------------------------------------------------------------------------------
    void updateTableViewActionEnable();
    void updateRecordStateAction();
    void updatePlaySoundState();
    /// updatePlaySoundState() on the main thread, from any thread.
    void updatePlaySoundButton();

    // ---- actions ----------------------------------------------------------------------------------------------------
    /// Makes the entry's file the display's sound and plays it.
    void playSoundFile(const Dictionary& entry);
    /// The same without playing it: it begins with the next playSoundButtonAction().
    void takeUpSoundFile(const Dictionary& entry);
    void playSoundButtonAction();
    void tableViewDoubleAction();
    void stopSoundPlaying();
    void deleteAudioFile();
    void revealInFinder();
    void openIniTunes();

    [[nodiscard]] AudioTableModel& tableModel() { return *tableModel_; }
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
    /// There is another sound, it began, paused, went on or ended, or its entry changed. Unlike
    /// isPlaySoundPlayingChanged() never without a cause.
    void playbackChanged();
    /// Something that the user asked for could not be done; one sentence.
    void problem(const QString& text);

private:
    void outlineSelectionDidChange();
    void tableViewSelectionDidChange();
    [[nodiscard]] int selectedRow() const;
    [[nodiscard]] qsizetype selectedRowCount() const;
    [[nodiscard]] CustomSound* currentSound() const;
    /// Brings path and titles of the sound in step with its entry: its file may have been renamed while it plays.
    void followPlayingEntry();
    void takeUp(const Dictionary& entry);
    /// updatePlaySoundState() and playbackChanged().
    void playbackDidChange();
    /// The sound is no longer the current one, so that Play follows the selection again.
    void letSoundGo();
    /// Lets a sound go when it has come to its end, later on: it is still telling so.
    void watchForTheEnd(const std::shared_ptr<CustomSound>& sound);
    /// Ends the current sound by hand; it stays the current one.
    void stopSound();
    /// Says nothing of a sound that plays.
    void sayWhyNothingPlays(const CustomSound& sound);

    MediaLibrary& library_;
    QTreeView& outline_;
    QTableView& table_;
    AudioWaveViewController& display_;
    AudioFilterController& filter_;
    IsRecording isStateAudioRecord_;
    bool stopping_ = false; ///< the sound ends by hand, not at its end
    Dictionary playingEntry_;
    QString playingKey_; ///< identity of the entry that the display's sound belongs to
    std::unique_ptr<MissingFiles> missing_;
    std::unique_ptr<LibraryOutlineModel> outlineModel_;
    std::unique_ptr<AudioTableModel> tableModel_;
};
