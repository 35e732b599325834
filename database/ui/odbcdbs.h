#pragma once

#include "database/connection.h"
#include "database/connection_jobs.h"
#include "document/kinds.h"

#include <QIcon>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <vector>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTimer;
class QVBoxLayout;

namespace corvanta {

class KindButtons;

// The ODBC tool window, "ODBC Toolbar": the connected data source, its tables, the columns of one of them, all to be
// dragged, and the kind that a column becomes on the page. It shows the editor's connection, which outlives it.
class Odbcdbs : public QWidget {
public:
    // The window stays in front of the main window, and can be used while that one is switched off. pictureOf gives the
    // picture of a kind button.
    Odbcdbs(QWidget &mainWindow, const std::function<QIcon(Kind)> &pictureOf);

    std::function<void()> closed;                                   // the user has closed the window, which hides it
    std::function<void(const std::vector<DroppedColumn> &)> placed; // columns are to come to the next free place

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void addSource(QVBoxLayout &layout);
    void addTables(QVBoxLayout &layout);
    void addColumns(QVBoxLayout &layout);
    void watchPointer();
    void addWaiting(QVBoxLayout &layout);
    void showChange(ConnectionJobs::Change change);
    void showWaiting();
    void selectSource();
    void tableClicked();
    void tableKeyReleased();
    void showConnection();
    void showTables();
    void showColumns();
    void placeChosen();
    void enableRows();
    std::vector<DroppedColumn> chosenColumns() const; // in the order of the list

    QPointer<QWidget> owner;
    QLineEdit *dsn = nullptr, *filter = nullptr;
    QPushButton *tblrows = nullptr, *refresh = nullptr;
    QWidget *waiting = nullptr; // the line about what is waited for
    QLabel *told = nullptr;
    QTimer *patient = nullptr;
    QListWidget *dbslist = nullptr, *fldlist = nullptr;
    KindButtons *kinds = nullptr;
    ConnectionJobs jobs;
};

} // namespace corvanta
