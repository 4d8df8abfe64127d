#pragma once

#include "shared/FormsTest.h"
#include "shared/Stencils.h"

/// Forms over stencil files in the test's own folder, which the preferences name as data folder.
class StencilFormsTest : public FormsTest {
 protected:
  StencilFormsTest() { SetDataFolder(true); }
  ~StencilFormsTest() override { SetDataFolder(false); }

  void SetDataFolder(bool own) {
    mPublic::recPreferences = StandardPreferences();
    mPublic::recPreferences.SelfStencilsOtherPath = own;
    mPublic::recPreferences.OtherStencilsPath.Set(folder.path());
    EXPECT_TRUE(mPublic::WritePreferences());
  }

  static QStringList Words(const char *words) {
    return QString::fromLatin1(words).split(u' ', Qt::SkipEmptyParts);
  }

  const QString stencils = Path(StencilFiles::SelfBuilt);
  const QString bar = Path(StencilFiles::QuickBar);
};
