#include "toolkit/Programs.h"

#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include "base/mPlatform.h"

namespace {

template <class T>
struct Unref {
  void operator()(T *object) const { g_object_unref(object); }
};
template <class T>
using Owned = std::unique_ptr<T, Unref<T>>;

bool IsThisProgram(GAppInfo *application) {
  const QString executable = QFile::decodeName(g_app_info_get_executable(application));
  const QFileInfo file(QStandardPaths::findExecutable(executable));
  return QFileInfo(executable).fileName() == mPlatform::Current().ownProgram ||
         (file.exists() &&
          file.canonicalFilePath() ==
              QFileInfo(QCoreApplication::applicationFilePath()).canonicalFilePath());
}

// Takes the application over.
std::optional<Programs::Application> Described(GAppInfo *found) {
  if (!found) return std::nullopt;
  const Owned<GAppInfo> application(found);
  return Programs::Application{QString::fromUtf8(g_app_info_get_id(found)), IsThisProgram(found)};
}

class PlatformPrograms : public Programs {
 public:
  Outcome Start(const Command &command) override {
    const QString program = QStandardPaths::findExecutable(command.program);
    if (program.isEmpty()) return Outcome::NotFound;
    QProcess process;
    process.setProgram(program);
    process.setArguments(command.arguments);
    process.setWorkingDirectory(command.folder);
    process.setProcessEnvironment(command.environment);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached() ? Outcome::Started : Outcome::Failed;
  }

  std::optional<Application> BoundToFile(const QString &path) override {
    const Owned<GFile> file(g_file_new_for_path(QFile::encodeName(path).constData()));
    const Owned<GFileInfo> info(g_file_query_info(file.get(),
                                                  G_FILE_ATTRIBUTE_STANDARD_CONTENT_TYPE,
                                                  G_FILE_QUERY_INFO_NONE, nullptr, nullptr));
    const char *type = info ? g_file_info_get_content_type(info.get()) : nullptr;
    return type ? Described(g_app_info_get_default_for_type(type, false)) : std::nullopt;
  }

  std::optional<Application> BoundToWeb() override {
    return Described(g_app_info_get_default_for_uri_scheme("https"));
  }

  void Open(const QString &path, const Application &application) override {
    const Owned<GDesktopAppInfo> found(g_desktop_app_info_new(application.id.toUtf8().constData()));
    if (!found) return;
    const Owned<GFile> file(g_file_new_for_path(QFile::encodeName(path).constData()));
    GList files{file.get(), nullptr, nullptr};
    g_app_info_launch(G_APP_INFO(found.get()), &files, nullptr, nullptr);
  }
};

std::unique_ptr<Programs> &InUse() {
  static std::unique_ptr<Programs> programs;
  return programs;
}

}  // namespace

bool Programs::IsExecutable(const QString &program) {
  return !QStandardPaths::findExecutable(program).isEmpty();
}

Programs &Programs::Current() {
  if (!InUse()) InUse() = std::make_unique<PlatformPrograms>();
  return *InUse();
}

void Programs::Set(std::unique_ptr<Programs> programs) {
  InUse() = std::move(programs);
}
