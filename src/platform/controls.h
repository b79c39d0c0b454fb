#pragma once

// All kinds of controls, for the forms.
#include "platform/button.h"
#include "platform/dir_list.h"
#include "platform/drive_list.h"
#include "platform/file_list.h"
#include "platform/form.h"
#include "platform/frame.h"
#include "platform/label.h"
#include "platform/list_box.h"
#include "platform/menu.h"
#include "platform/picture_array.h"
#include "platform/progress_bar.h"
#include "platform/text_box.h"
#include "platform/timer.h"
