// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractListModel>

#include <reader/citing/CitationDocument.h>

namespace Tavrin::Reader
{

/// The passages of a work as rows: their first line, and how many entries they cite.
class CitationModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit CitationModel(QObject *parent = nullptr);

    const CitationDocument &document() const { return m_document; }
    void setDocument(CitationDocument document);

    /// Null for a row that is none.
    const Citation *citation(int row) const;
    void setCitation(int row, const Citation &citation);
    /// At the end; returns its row.
    int append();
    void remove(int row);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

Q_SIGNALS:
    /// The document is not what it was when it was set.
    void edited();

private:
    CitationDocument m_document;
};

} // namespace Tavrin::Reader
