// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/LibraryPresenter.h"

#include "FilterAudio/AudioFilterController.h"
#include "Platform/Desktop/Workspace.h"
#include "Platform/Foundation/Clock.h"
#include "Platform/Foundation/MainQueue.h"
#include "Platform/Foundation/Services.h"
#include "RingtoneMaker/CustomSound.h"
#include "Source/AudioWaveViewController/AudioWaveViewController.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibrary.h"
#include "Source/Model/MissingFiles.h"
#include "Source/WndController/AudioTableModel.h"
#include "Source/WndController/AudioTags.h"
#include "Source/WndController/LibraryOutlineModel.h"
#include "Source/WndController/LibrarySearch.h"
#include "Source/WndController/TitleEdit.h"

#include <QFileInfo>
#include <QItemSelectionModel>
#include <QScopedValueRollback>
#include <QTableView>
#include <QTreeView>

namespace {

bool isRingtone(const QString& path) {
    return QFileInfo(path).suffix().toLower() == QStringLiteral("m4r");
}

} // namespace

LibraryPresenter::LibraryPresenter(MediaLibrary& library, QTreeView& outline, QTableView& table,
                                   AudioWaveViewController& display, AudioFilterController& filter,
                                   IsRecording isStateAudioRecord, QObject* parent)
    : QObject(parent), library_(library), outline_(outline), table_(table), display_(display), filter_(filter),
      isStateAudioRecord_(std::move(isStateAudioRecord)), missing_(std::make_unique<MissingFiles>()),
      outlineModel_(std::make_unique<LibraryOutlineModel>(library)),
      tableModel_(std::make_unique<AudioTableModel>(library, *missing_)), titleEdit_(std::make_unique<TitleEdit>()),
      search_(std::make_unique<LibrarySearch>(library)) {
    outline_.setModel(outlineModel_.get());
    table_.setModel(tableModel_.get());
    connect(outline_.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &LibraryPresenter::outlineSelectionDidChange);
    // A rebuilt tree gets the default expansion and selection. A reset sends no selection signal.
    connect(outlineModel_.get(), &QAbstractItemModel::modelReset, this, [this] {
        updateDefaultListStyle();
        outlineSelectionDidChange();
    });
    connect(table_.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &LibraryPresenter::tableViewSelectionDidChange);
    connect(&table_, &QTableView::doubleClicked, this, &LibraryPresenter::tableViewDoubleAction);
    // Row changes by the model itself change what can be filtered, and may remove selected rows.
    const auto rowsChanged = [this] { Q_EMIT canFilterAudioChanged(); };
    connect(tableModel_.get(), &QAbstractItemModel::rowsInserted, this, rowsChanged);
    connect(tableModel_.get(), &QAbstractItemModel::rowsRemoved, this, rowsChanged);
    connect(tableModel_.get(), &QAbstractItemModel::modelReset, this, [this] {
        Q_EMIT canFilterAudioChanged();
        tableViewSelectionDidChange();
    });
    connect(tableModel_.get(), &QAbstractItemModel::dataChanged, this,
            [this] { Q_EMIT tableViewSelectionAudioChanged(); });
    connect(&library_, &MediaLibrary::leafChanged, this, [this](const QString&, const LeafChange& change) {
        if (!change.onlyInserts())
            followPlayingEntry();
    });
    connect(search_.get(), &LibrarySearch::found, this, &LibraryPresenter::show);
    connect(tableModel_.get(), &AudioTableModel::titleTyped, titleEdit_.get(), &TitleEdit::save);
    connect(titleEdit_.get(), &TitleEdit::saved, this, &LibraryPresenter::updateFile);
    connect(titleEdit_.get(), &TitleEdit::problem, this, &LibraryPresenter::problem);
    if (auto* workspace = Platform::services().workspace)
        connect(workspace, &Platform::Workspace::fileSystemChanged, missing_.get(), &MissingFiles::forget);
}

LibraryPresenter::~LibraryPresenter() {
    // The views may outlive their models.
    outline_.setModel(nullptr);
    table_.setModel(nullptr);
}

void LibraryPresenter::updateDefaultListStyle() {
    outline_.expandAll();
    int rows = 0;
    QModelIndex second;
    for (QModelIndex row = outlineModel_->index(0, 0); row.isValid(); row = outline_.indexBelow(row))
        if (++rows == 2)
            second = row;
    if (rows >= 3)
        outline_.selectionModel()->setCurrentIndex(second,
                                                   QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

Dictionary LibraryPresenter::makeAudioLibraryDataByFile(const QString& path, const Dictionary& tags) {
    return MediaLibrary::entryForFile(path, tags);
}

void LibraryPresenter::addRecordFile(const QString& path, const Dictionary& tags) {
    library_.addRecordFile(makeAudioLibraryDataByFile(path, tags));
    reloadFromMediaLibrary();
}

void LibraryPresenter::addRingtoneFile(const QString& path, const Dictionary& tags) {
    library_.addRingtoneFile(makeAudioLibraryDataByFile(path, tags));
    reloadFromMediaLibrary();
}

void LibraryPresenter::updateFile(const QString& path, const Dictionary& tags) {
    Dictionary stored = tags;
    stored.remove(AudioRecordEntry::Artwork); // entries contain texts and numbers only; the cover is in the file
    missing_->forget(path);
    if (isRingtone(path))
        addRingtoneFile(path, stored);
    else
        addRecordFile(path, stored);
}

void LibraryPresenter::removeMediaLibraryArray(const QVariantList& entries) {
    library_.removeMediaLibraryArray(entries);
    reloadFromMediaLibrary();
}

void LibraryPresenter::reloadFromMediaLibrary() {
    Q_EMIT canFilterAudioChanged();
}

const MediaLibraryNode* LibraryPresenter::libraryViewSelectedNode() const {
    const QModelIndexList rows = outline_.selectionModel()->selectedRows();
    return rows.isEmpty() ? nullptr : outlineModel_->node(rows.first());
}

void LibraryPresenter::outlineSelectionDidChange() {
    const QModelIndexList rows = outline_.selectionModel()->selectedRows();
    search_->setNode(rows.isEmpty() ? nullptr : outlineModel_->sharedNode(rows.first()));
}

void LibraryPresenter::show(const std::shared_ptr<const MediaLibraryNode>& node, bool keepSelection) {
    // A selection of a few recordings is restored in the new list. A larger one usually is the whole old list;
    // searching its rows would take too long.
    constexpr qsizetype most = 100;
    QStringList selected;
    if (keepSelection && selectedRowCount() <= most)
        for (const QVariant& entry : tableViewSelectionAudioArray())
            selected += entry.toMap().value(AudioRecordEntry::SavePath).toString();
    tableModel_->setNode(node);
    QItemSelection again;
    for (const QString& path : selected)
        if (const int row = tableModel_->rowOfPath(path); row >= 0)
            again.select(tableModel_->index(row, 0), tableModel_->index(row, AudioTableModel::ColumnCount - 1));
    if (again.isEmpty())
        return;
    table_.selectionModel()->setCurrentIndex(tableModel_->index(again.first().top(), AudioTableModel::Title),
                                             QItemSelectionModel::NoUpdate);
    table_.selectionModel()->select(again, QItemSelectionModel::ClearAndSelect);
}

void LibraryPresenter::tableViewSelectionDidChange() {
    updateTableViewActionEnable();
    updatePlaySoundState();
}

qsizetype LibraryPresenter::selectedRowCount() const {
    // Uses ranges, not rows: the selection of a whole long list must not be iterated for each button. The table selects
    // rows, so ranges span its width and do not overlap.
    qsizetype count = 0;
    for (const QItemSelectionRange& range : table_.selectionModel()->selection())
        count += range.height();
    return count;
}

int LibraryPresenter::selectedRow() const {
    const QItemSelection selection = table_.selectionModel()->selection();
    int last = -1;
    for (const QItemSelectionRange& range : selection)
        last = qMax(last, range.bottom());
    const QModelIndex current = table_.currentIndex();
    return current.isValid() && selection.contains(current) ? current.row() : last;
}

QVariantList LibraryPresenter::tableViewSelectionAudioArray() const {
    std::vector<int> rows;
    for (const QItemSelectionRange& range : table_.selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    std::sort(rows.begin(), rows.end());
    QVariantList entries;
    for (const int row : rows)
        if (row < tableModel_->rowCount())
            entries.append(tableModel_->entry(row));
    return entries;
}

Dictionary LibraryPresenter::tableViewSelectionAudio() const {
    return tableModel_->entry(selectedRow());
}

QString LibraryPresenter::tableViewSelectionAudioPath() const {
    return AudioTags::audioTag(tableViewSelectionAudio(), QStringLiteral("path")).toString();
}

bool LibraryPresenter::selectFile(const QString& path) {
    search_->update();
    int row = tableModel_->rowOfPath(path);
    if (row < 0 && search_->isActive()) {
        search_->setText({});
        Q_EMIT searchEnded();
        row = tableModel_->rowOfPath(path);
    }
    if (row < 0) {
        const QModelIndex all =
            outlineModel_->indexOfKey(isRingtone(path) ? QStringLiteral("all-ringtone") : QStringLiteral("all-record"));
        outline_.selectionModel()->setCurrentIndex(all,
                                                   QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        row = tableModel_->rowOfPath(path);
    }
    if (row < 0)
        return false;
    selectRow(row);
    return true;
}

void LibraryPresenter::selectRow(int row) {
    // Not the table's selectRow(): while a modifier key is pressed, for example for a shortcut, it would extend the
    // selection.
    const QModelIndex entry = tableModel_->index(row, AudioTableModel::Title);
    table_.selectionModel()->setCurrentIndex(entry, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    table_.scrollTo(entry);
}

double LibraryPresenter::selectedSeconds() const {
    double seconds = 0;
    for (const QItemSelectionRange& range : table_.selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            seconds += Platform::doubleValue(tableModel_->entry(row).value(AudioRecordEntry::Length));
    return seconds;
}

bool LibraryPresenter::tableViewPlayEnable() const {
    return selectedRowCount() == 1 && !isStateAudioRecord_();
}

bool LibraryPresenter::tableViewShowEnable() const {
    return selectedRowCount() == 1;
}

bool LibraryPresenter::tableViewDeleteEnable() const {
    return selectedRowCount() > 0;
}

bool LibraryPresenter::tableViewSelectionAudioIsRingtone() const {
    return isRingtone(tableViewSelectionAudioPath());
}

bool LibraryPresenter::tableViewCanEditSelectionAudioRecord() const {
    return tableViewPlayEnable() && !tableViewSelectionAudioIsRingtone();
}

bool LibraryPresenter::canJoinSelection() const {
    return selectedRowCount() > 1 && !isStateAudioRecord_() && !tableViewSelectionAudioIsRingtone();
}

bool LibraryPresenter::canFilterAudio() const {
    return tableModel_->rowCount() > 0;
}

bool LibraryPresenter::libraryIsEmpty() const {
    return library_.records().isEmpty() && library_.ringtones().isEmpty();
}

bool LibraryPresenter::isPlaySoundButtonEnable() const {
    if (isStateAudioRecord_())
        return false;
    const CustomSound* sound = currentSound();
    return sound ? sound->duration() > 0 : !tableViewSelectionAudioPath().isEmpty();
}

bool LibraryPresenter::isPlaySoundPlaying() const {
    const CustomSound* sound = currentSound();
    return sound && sound->isPlaying();
}

void LibraryPresenter::setIsPlaySoundPlaying(bool /*ignored*/) {
    updatePlaySoundButton();
}

CustomSound* LibraryPresenter::currentSound() const {
    return display_.playSound().get();
}

QString LibraryPresenter::playingPath() const {
    const CustomSound* const sound = currentSound();
    return sound ? sound->path() : QString();
}

void LibraryPresenter::followPlayingEntry() {
    CustomSound* const sound = currentSound();
    if (!sound || playingKey_.isEmpty())
        return;
    Dictionary entry = MediaLibrary::findAudioByKey(playingKey_, library_.records());
    if (entry.isEmpty())
        entry = MediaLibrary::findAudioByKey(playingKey_, library_.ringtones());
    if (entry.isEmpty()) {
        letSoundGo(); // a deleted recording must not continue to play
        return;
    }
    playingEntry_ = entry;
    display_.setTitle(AudioTags::audioTag(entry, QStringLiteral("title")).toString());
    display_.setArtist(AudioTags::audioTag(entry, QStringLiteral("artist")).toString());
    const QString path = Platform::stringForm(AudioTags::audioTag(entry, QStringLiteral("path")));
    if (path != sound->path()) {
        sound->setPath(path); // it continues to play: its file is open
        tableModel_->setPlayingPath(path);
    }
    Q_EMIT playbackChanged();
}

void LibraryPresenter::updateTableViewActionEnable() {
    Q_EMIT tableViewPlayEnableChanged();
    Q_EMIT tableViewShowEnableChanged();
    Q_EMIT tableViewDeleteEnableChanged();
    Q_EMIT tableViewSelectionAudioChanged();
    Q_EMIT tableViewSelectionAudioIsRingtoneChanged();
    Q_EMIT tableViewCanEditSelectionAudioRecordChanged();
}

void LibraryPresenter::updateRecordStateAction() {
    Q_EMIT tableViewPlayEnableChanged();
    Q_EMIT tableViewCanEditSelectionAudioRecordChanged();
}

void LibraryPresenter::updatePlaySoundState() {
    Q_EMIT isPlaySoundButtonEnableChanged();
    Q_EMIT isPlaySoundPlayingChanged();
}

void LibraryPresenter::updatePlaySoundButton() {
    QMetaObject::invokeMethod(this, &LibraryPresenter::updatePlaySoundState);
}

void LibraryPresenter::playbackDidChange() {
    updatePlaySoundState();
    Q_EMIT playbackChanged();
}

void LibraryPresenter::letSoundGo() {
    stopSound();
    playingKey_.clear();
    playingEntry_.clear();
    display_.setPlaySound(nullptr);
    display_.setTitle({});
    display_.setArtist({});
    tableModel_->setPlayingPath({});
    playbackDidChange();
}

void LibraryPresenter::watchForTheEnd(const std::shared_ptr<CustomSound>& sound) {
    if (!sound->sound())
        return;
    connect(sound->sound(), &Platform::Sound::finished, this, [this, watched = std::weak_ptr(sound)] {
        const auto ended = watched.lock();
        if (stopping_ || !ended)
            return;
        Platform::MainQueue::post(this, [this, watched] {
            const auto still = watched.lock();
            if (!still || still != display_.playSound() || !still->isStop())
                return;
            // A sound that ended because the sound server went away can be played again.
            if (still->sound()->lastError().isEmpty())
                letSoundGo();
            else
                playbackDidChange();
        });
    });
}

void LibraryPresenter::stopSound() {
    const QScopedValueRollback stopping(stopping_, true);
    if (CustomSound* sound = currentSound())
        sound->stop();
}

void LibraryPresenter::takeUp(const Dictionary& entry) {
    stopSound();
    playingEntry_ = entry;
    const QVariant key = AudioRecordEntry::keyOf(entry);
    playingKey_ = key.isValid() ? Platform::stringForm(key) : QString();
    const QString path = Platform::stringForm(AudioTags::audioTag(entry, QStringLiteral("path")));
    display_.setTitle(AudioTags::audioTag(entry, QStringLiteral("title")).toString());
    display_.setArtist(AudioTags::audioTag(entry, QStringLiteral("artist")).toString());
    auto sound = std::make_shared<CustomSound>(path);
    display_.setPlaySound(sound);
    watchForTheEnd(sound);
    tableModel_->setPlayingPath(path);
}

void LibraryPresenter::playSoundFile(const Dictionary& entry) {
    takeUp(entry);
    const auto sound = display_.playSound();
    sound->play();
    playbackDidChange();
    sayWhyNothingPlays(*sound);
    if (sound->duration() > 0)
        return;
    missing_->forget(sound->path());
    letSoundGo();
}

void LibraryPresenter::takeUpSoundFile(const Dictionary& entry) {
    takeUp(entry);
    playbackDidChange();
}

void LibraryPresenter::sayWhyNothingPlays(const CustomSound& sound) {
    if (sound.isPlaying())
        return;
    const QString name = QFileInfo(sound.path()).fileName();
    const QString why = sound.sound() ? sound.sound()->lastError() : QString();
    if (!QFileInfo::exists(sound.path()))
        Q_EMIT problem(tr("The file is no longer there: %1").arg(sound.path()));
    else if (sound.duration() <= 0 || why.isEmpty())
        Q_EMIT problem(tr("“%1” cannot be played.").arg(name));
    else
        Q_EMIT problem(tr("“%1” cannot be played: %2").arg(name, why));
}

void LibraryPresenter::playSoundButtonAction() {
    CustomSound* sound = currentSound();
    if (!sound) {
        playSoundFile(tableViewSelectionAudio());
        return;
    }
    if (sound->isPlaying()) {
        sound->pause();
        playbackDidChange();
        return;
    }
    // It was paused, or stopped by a recording, and its file may have been deleted since.
    if (!QFileInfo::exists(sound->path())) {
        missing_->forget(sound->path());
        sayWhyNothingPlays(*sound);
        letSoundGo();
        return;
    }
    sound->play();
    playbackDidChange();
    sayWhyNothingPlays(*sound);
}

void LibraryPresenter::tableViewDoubleAction() {
    if (!tableViewPlayEnable())
        return;
    playSoundFile(tableViewSelectionAudio());
    display_.setTabViewShowWave(false);
}

void LibraryPresenter::stopSoundPlaying() {
    stopSound();
    QMetaObject::invokeMethod(this, &LibraryPresenter::playbackDidChange, Qt::QueuedConnection);
}

void LibraryPresenter::deleteAudioFile() {
    const QVariantList chosen = tableViewSelectionAudioArray();
    if (chosen.isEmpty() || !filter_.runRemoveAudioAlert())
        return;
    // The row below the deleted ones is selected next, or the one above when there is none below.
    const QItemSelection selection = table_.selectionModel()->selection();
    int last = -1;
    for (const QItemSelectionRange& range : selection)
        last = qMax(last, range.bottom());
    int next = last + 1;
    if (next >= tableModel_->rowCount())
        for (next = last; next >= 0 && selection.contains(tableModel_->index(next, 0));)
            --next;
    const QPersistentModelIndex successor = tableModel_->index(next, AudioTableModel::Title);
    const QString path = tableModel_->entry(next).value(AudioRecordEntry::SavePath).toString();
    removeMediaLibraryArray(chosen);
    search_->update();
    // When the search has replaced the list, the persistent index is invalid.
    const int row = successor.isValid() ? successor.row() : path.isEmpty() ? -1 : tableModel_->rowOfPath(path);
    if (row >= 0)
        selectRow(row);
}

void LibraryPresenter::revealInFinder() {
    const QString path = tableViewSelectionAudioPath();
    if (!Platform::services().workspace->selectFile(path))
        Q_EMIT problem(tr("The folder of “%1” could not be shown.").arg(QFileInfo(path).fileName()));
}

void LibraryPresenter::openIniTunes() {
    const QString path = tableViewSelectionAudioPath();
    if (!Platform::services().workspace->openFile(path, QStringLiteral("iTunes")))
        Q_EMIT problem(tr("No player could be opened for “%1”.").arg(QFileInfo(path).fileName()));
}
