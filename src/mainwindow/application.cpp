#include "mainwindow/application.h"

#include "launch/demo_save.h"
#include "mainwindow/main_window.h"
#include "setup/credits.h"
#include "setup/engine_settings.h"
#include "setup/setup.h"
#include "state/startup.h"

void ConnectApplication() {
    frmSetup.OnAccepted = [] { frmMain.SetupLists(); };
    TheApplication.windows = {&frmMain, &frmSetup, &frmEngineSettings, &frmDemoSave, &frmCredits};
    TheApplication.afterLoading = [] { frmSetup.SetupLists(); };
}
