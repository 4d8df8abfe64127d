#pragma once

#include <array>
#include <vector>

#include "frame/PreferencesChoices.h"
#include "toolkit/CommonDialog.h"
#include "toolkit/mForms.h"
#include "ui_frmPreferences.h"

/// The only editor of the preferences. OK writes them and applies them at once.
class frmPreferences : public DialogForm, public Ui::frmPreferences {
  Q_OBJECT

 public:
  frmPreferences();
  void Load() override;

  CommonDialog cdgOtherPreviewApp;
  CommonDialog cdgSelectJava;

 private:
  using FourOptions = std::array<QRadioButton *, 4>;

  void ConnectOptions();
  void ShowChoices(const PreferencesChoices &choices);
  void ShowFontChoices(const PreferencesChoices &choices);
  PreferencesChoices Choices() const;
  QString SelectedFontName() const;
  void ShowFont(const QString &name);
  void lstFontNames_Click();
  void cboFontsize_Click();
  void cmdSelectApplication_Click();
  void cmdSelectJava_Click(int index);
  void cmdOk_Click();

  FourOptions optImageHeight_;
  FourOptions optImageWidth_;
  FourOptions optShapeColor_;
  FourOptions optAppFontSize_;
  std::array<QLineEdit *, 2> txtJavaPath_;
};
