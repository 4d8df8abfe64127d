#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <memory>
#include <optional>

/// The one way to other programs. Nothing is ever interpreted by a shell, and nobody waits for what
/// was started. Tests put a scripted one in its place.
class Programs {
 public:
  struct Command {
    QString program;  ///< a path, or a name that is looked up in PATH
    QStringList arguments;
    QString folder = {};  ///< that it starts in; empty for this process's own
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  };

  enum class Outcome {
    Started,
    NotFound,  ///< there is no such program, or it isn't executable
    Failed,
  };

  /// An application that the desktop knows.
  struct Application {
    QString id;  ///< of its desktop entry, "viewer.desktop"
    bool isThisProgram = false;
  };

  virtual ~Programs() = default;

  /// What it prints goes nowhere.
  virtual Outcome Start(const Command &command) = 0;

  /// The application bound to a file's type, or to addresses of the web (https). Nothing if there
  /// is none.
  virtual std::optional<Application> BoundToFile(const QString &path) = 0;
  virtual std::optional<Application> BoundToWeb() = 0;

  /// Opens a file with an application.
  virtual void Open(const QString &path, const Application &application) = 0;

  /// Whether a text is the path of a program, or the name of one in PATH.
  static bool IsExecutable(const QString &program);

  /// The programs in use: the platform's own unless others have been set.
  static Programs &Current();

  /// Puts others in place; null puts the platform's own back.
  static void Set(std::unique_ptr<Programs> programs);
};
