// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

#include <vector>

namespace Tavrin
{

/// Gathers what could not be told, so that a thousand cases of one kind become one sentence.
class DraftRemarks
{
public:
    /// One case of a kind; the first few are named as examples.
    void add(const QString &kind, const QString &example);
    /// A sentence of its own.
    void add(const QString &sentence);

    /// In the order in which the kinds came up.
    QStringList sentences() const;

private:
    struct Kind {
        QString text;
        int cases = 0;
        QStringList examples;
    };
    std::vector<Kind> m_kinds;
};

} // namespace Tavrin
