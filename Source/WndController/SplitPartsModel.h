// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>

class SplitPlan;

/// The parts of a SplitPlan as rows: their titles can be edited. Main thread.
class SplitPartsModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { Title, Begin, Length, ColumnCount };

    /// @p plan outlives it.
    explicit SplitPartsModel(SplitPlan& plan, QObject* parent = nullptr);

    /// The recording's title, of which parts without one get theirs.
    void setRecordingTitle(const QString& title);
    /// The cuts have changed; the number of rows and the selection follow.
    void update();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    SplitPlan& plan_;
    QString recordingTitle_;
    int rows_ = 0;
};
