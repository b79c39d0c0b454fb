#pragma once

// All kinds of controls.
#include "forms_layer/captioned.h"
#include "forms_layer/dir_list.h"
#include "forms_layer/drive_list.h"
#include "forms_layer/file_list.h"
#include "forms_layer/form.h"
#include "forms_layer/frame.h"
#include "forms_layer/list_box.h"
#include "forms_layer/menu.h"
#include "forms_layer/picture_array.h"
#include "forms_layer/progress_bar.h"
#include "forms_layer/text_box.h"
#include "forms_layer/timer.h"
