#include "toolkit/TemporaryFolderQuestion.h"

#include "base/TemporaryFolder.h"
#include "base/mPlatform.h"
#include "toolkit/Dialogs.h"

bool TemporaryFolderIsThere(const QString &text, const QString &title) {
  const Platform &platform = mPlatform::Current();
  const auto state = TemporaryFolder::Look(platform.temporaryFolder);
  if (state != TemporaryFolder::State::Missing) return state == TemporaryFolder::State::Usable;
  return Dialogs::Current().Message(mPlatform::WithTemporaryFolder(text, platform),
                                    Dialogs::Buttons::OkCancel, Dialogs::Icon::None,
                                    title) == Dialogs::Answer::Ok &&
         TemporaryFolder::Make(platform.temporaryFolder);
}
