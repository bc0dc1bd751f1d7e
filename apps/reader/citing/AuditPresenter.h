// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

#include <Tavrin/manager/EntryFinder.h>
#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/model/ReferenceCoverage.h>

class QWidget;

namespace Tavrin::Reader
{

class ControllerPane;
class ReferenceAudit;

/// Shows what references cover of the specification that most of them lead into: in a table, or as
/// marks in the document. That there is none is said over the window.
class AuditPresenter : public QObject
{
    Q_OBJECT

public:
    /// All that is given must outlive the presenter.
    AuditPresenter(SpecificationManager &manager, EntryFinder &finder, ControllerPane &detail,
                   QWidget &window);

    void showTable(const ReferenceCoverage &references);
    void showMarks(const ReferenceCoverage &references);
    /// The table for the references of a file, one a line.
    void showFile(const QString &path);
    void chooseFile();

private:
    bool requireSpecification(const ReferenceAudit &audit);

    SpecificationManager &m_manager;
    EntryFinder &m_finder;
    ControllerPane &m_detail;
    QWidget &m_window;
};

} // namespace Tavrin::Reader
