// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QWidget>

#include <functional>
#include <memory>

#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/pdfspec/PDFSpecification.h>

namespace Tavrin::Testing
{

/// A state of a window, and how it comes from the state before.
template <class Subject>
struct State {
    const char *name;
    void (*prepare)(Subject &subject) = [](Subject &) {};
};

/// Takes pictures of windows in their states, for people to look at. Each set of pictures is taken
/// in every mode: light, dark, German, and from the right to the left.
class Studio
{
public:
    /// Takes one set. Windows that it leaves behind are closed.
    using Pictures = void (*)(Studio &studio);

    /// Pictures go below the folder, into a folder each mode; `corpus` is the folder of the PDFs.
    Studio(QString folder, QString corpus);

    void takeAll(Pictures pictures);

    /// Saves what the window shows, when its pages are drawn.
    void shoot(QWidget &window, const QString &name);
    /// Brings a window into one state after the other.
    template <class Subject, class States>
    void shootStates(QWidget &window, Subject &subject, const States &states)
    {
        for (const State<Subject> &state : states) {
            state.prepare(subject);
            shoot(window, QLatin1String(state.name));
        }
    }
    /// Saves it with what is over it, which on the screen is a window of its own.
    void shoot(QWidget &window, const QString &name, QWidget &above);
    /// Waits, while events are handled; complains if it was in vain.
    static bool waitFor(const std::function<bool()> &condition);

    /// One of the PDFs.
    QString document(const QString &name) const;
    /// Registers the sample that scenes with a real document show, and binds its PDF.
    std::shared_ptr<PDFSpecification> bindSample(SpecificationManager &manager) const;

private:
    void takeIn(const QString &mode, Pictures pictures);

    QString m_folder;
    QString m_corpus;
    QString m_mode;
};

/// What a fixture of the tests sets up, without a test.
template <class Fixture>
class Staged : public Fixture
{
public:
    ~Staged() override { this->TearDown(); }

private:
    void TestBody() override {}
};

void takeAuditPictures(Studio &studio);
void takeCitingPictures(Studio &studio);
void takeDetailPictures(Studio &studio);
void takeFilesPictures(Studio &studio);
void takeReaderPictures(Studio &studio);
void takeSidebarPictures(Studio &studio);
void takeSummaryPictures(Studio &studio);
void takeViewerPictures(Studio &studio);

} // namespace Tavrin::Testing
