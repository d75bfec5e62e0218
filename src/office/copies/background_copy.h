#pragma once
// A copy of the database that nobody waits for.

#include "platform/values/date_value.h"
#include "platform/values/errors.h"

#include <QObject>
#include <QString>
#include <QThread>
#include <memory>

namespace lorvo {

/// What became of a copy.
struct CopyOutcome {
    QString failure;        ///< empty when the copy is there
    bool isDamaged = false; ///< the database itself is
    QString newestGood; ///< name of the newest good copy after a failure, empty when there is none
    int daysOld = 0;    ///< how old that one is
};

/// What is damaged and which copy to put back, for the last message.
QString DamageText(const CopyOutcome& outcome);

/// What to say of a database that was found damaged.
[[nodiscard]] CopyOutcome CopyAfterDamage(const CorruptStoreError& damage,
                                          const QString& programFolder, DateValue now);

/// MakeCopy, with its failure as an outcome instead of an exception.
[[nodiscard]] CopyOutcome TryCopy(const QString& programFolder, DateValue now);

/// Makes one copy at a time on a thread of its own.
class BackgroundCopy : public QObject {
    Q_OBJECT
  public:
    using QObject::QObject;
    ~BackgroundCopy() override; ///< waits for a copy under way

    void Begin(const QString& programFolder, DateValue now);

  Q_SIGNALS:
    /// On the thread of the object.
    void Ended(const lorvo::CopyOutcome& outcome);

  private:
    void Wait();

    std::unique_ptr<QThread> thread_;
};

} // namespace lorvo
