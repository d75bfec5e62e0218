#pragma once
// A database of a test's own.

#include <QString>
#include <QTemporaryDir>

namespace lorvo {

/// A fresh database file in a temporary folder, with the program's one connection open on it until
/// the end of the object's life. The tables are made once per process and copied, so that every
/// test can afford one.
class TempDatabase {
  public:
    enum class Content {
        Empty,    ///< tables without rows
        Delivered ///< what a fresh installation holds: breeds, and the show's date not set
    };

    explicit TempDatabase(Content content = Content::Empty);
    ~TempDatabase();
    TempDatabase(const TempDatabase&) = delete;
    TempDatabase& operator=(const TempDatabase&) = delete;

    /// The folder stands for the program's own; data.mdb lies in it.
    QString Folder() const { return folder_.path(); }
    QString Path() const;
    /// Ends the run and begins the next one on the same file.
    void Reopen();
    /// Runs a statement of SQLite's own, past everything that is being tested.
    void Execute(const std::string& sql);

    /// Puts a fresh database into a folder without opening it; returns its path.
    static QString CopyTo(const QString& folder, Content content = Content::Empty);

    /// Where temporary folders of databases belong: in memory where the system has such a place,
    /// so that tests needn't wait for a disk.
    static QString FolderTemplate();

  private:
    QTemporaryDir folder_{FolderTemplate()};
};

} // namespace lorvo
