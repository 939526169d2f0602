#include "services/forms/Form.h"
#include "ui_frmMain.h"
