#pragma once

#include "tools/options/Activation.h"
#include "tools/options/EditorContext.h"
#include "tools/options/TemplateCatalogue.h"
#include "tools/options/lists/GroupList.h"
#include "tools/options/lists/ItemList.h"
#include "tools/options/lists/ShownTemplate.h"
#include "tools/options/lists/TemplateSelector.h"
#include "tools/options/names/ItemNameEditor.h"
#include "tools/options/saveas/SavingAs.h"
#include "tools/options/saving/CatalogueReload.h"
#include "tools/options/saving/TemplateApplying.h"
#include "tools/options/saving/TemplateDeleting.h"
#include "tools/options/saving/TemplateSaving.h"

namespace schedules {

/// Who does what in the options editor, each with those that it works with.
struct EditorRooms
{
    EditorRooms(QWidget& editor, IToolUI& tool, HostLink& host)
        : form(editor),
          context{host, form, state},
          catalogue(host),
          shown(context, catalogue),
          names(context, shown),
          items(context, shown, names),
          groups(context, shown, items),
          selector(context, catalogue, shown, groups, items),
          activation(context, catalogue, shown, selector, groups),
          reload(context, catalogue, shown, selector, groups, items, tool),
          saving(context, catalogue, reload),
          savingAs(context, catalogue, saving, editor),
          applying(context, saving, savingAs),
          deleting(context, catalogue, reload)
    {
    }

    EditorState state;
    OptionsForm form;
    EditorContext context;
    TemplateCatalogue catalogue;
    ShownTemplate shown;
    ItemNameEditor names;
    ItemList items;
    GroupList groups;
    TemplateSelector selector;
    Activation activation;
    CatalogueReload reload;
    TemplateSaving saving;
    SavingAs savingAs;
    TemplateApplying applying;
    TemplateDeleting deleting;
};

} // namespace schedules
