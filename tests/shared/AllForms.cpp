#include "shared/AllForms.h"

#include "assistants/frmColors.h"
#include "assistants/frmFontcolors.h"
#include "assistants/frmInsertFrame.h"
#include "assistants/frmInsertHorRule.h"
#include "assistants/frmInsertImage.h"
#include "assistants/frmInsertLink.h"
#include "assistants/frmInsertList.h"
#include "assistants/frmInsertTable.h"
#include "assistants/frmMetaTags.h"
#include "assistants/frmSpecialCharacters.h"
#include "documents/frmMemoPad.h"
#include "documents/frmNewEditorWindow.h"
#include "documents/frmSearch.h"
#include "frame/frmInfo.h"
#include "frame/frmLanguage.h"
#include "frame/frmPathSelect.h"
#include "frame/frmPreferences.h"
#include "images/frmImageSinglePreview.h"
#include "images/frmImageViewer.h"
#include "java/frmDebuggingInfo.h"
#include "stencils/frmDatabaseIsLoading.h"
#include "stencils/frmExport.h"
#include "stencils/frmQuickBar.h"
#include "stencils/frmQuickbarEditor.h"
#include "stencils/frmSelfStencilBuilder.h"
#include "stencils/frmStencils.h"
#include "stencils/frmStencilsSearch.h"
#include "stencils/frmTagDescription.h"
#include "toolkit/mForms.h"

namespace {

// It may have been closed while it was made.
template <class F>
QWidget *Shown() {
  auto *form = Default<F>();
  if (form->IsUnloaded()) return nullptr;
  form->show();
  return form;
}

}  // namespace

const QList<QWidget *(*)()> &AllForms() {
  static const QList<QWidget *(*)()> forms{
      &Shown<frmNewEditorWindow>,
      &Shown<frmSearch>,
      &Shown<frmMemoPad>,
      &Shown<frmPreferences>,
      &Shown<frmPathSelect>,
      &Shown<frmInfo>,
      &Shown<frmLanguage>,
      &Shown<frmInsertFrame>,
      &Shown<frmInsertTable>,
      &Shown<frmInsertList>,
      &Shown<frmInsertImage>,
      &Shown<frmInsertLink>,
      &Shown<frmInsertHorRule>,
      &Shown<frmMetaTags>,
      &Shown<frmColors>,
      &Shown<frmFontcolors>,
      &Shown<frmSpecialCharacters>,
      &Shown<frmDatabaseIsLoading>,
      &Shown<frmStencils>,
      &Shown<frmStencilsSearch>,
      &Shown<frmSelfStencilBuilder>,
      &Shown<frmQuickBar>,
      &Shown<frmQuickbarEditor>,
      &Shown<frmExport>,
      &Shown<frmTagDescription>,
      &Shown<frmImageViewer>,
      &Shown<frmImageSinglePreview>,
      &Shown<frmDebuggingInfo>,
  };
  return forms;
}
