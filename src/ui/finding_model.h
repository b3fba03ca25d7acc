#pragma once

#include <QAbstractTableModel>

#include "shell/finding_list.h"

namespace swiftroll::ui {

/// The findings of a check as a model of the toolkit. It holds none of them: cells are asked for when they
/// are painted.
class FindingModel : public QAbstractTableModel {
  public:
    explicit FindingModel(FindingList& findings) : findings_(findings) {}

    /// Tells the views when other findings are seen.
    void Sync();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

  private:
    FindingList& findings_;
    int shownRows_ = 0;
    int shownChanges_ = 0;
};

}  // namespace swiftroll::ui
