#include "platform/form_windows.h"

#include "mapview/frmDisplay_window.h"
#include "mapview/frmEnterCoord_window.h"
#include "persistence/frmSaveSelect_window.h"
#include "program/about_window.h"
#include "program/frmStart_window.h"

#include <map>
#include <string>

namespace {

using Maker = std::unique_ptr<FormWindow> (*)(Form&, EventRunner&, QWidget*);

template <class F, class Window>
std::unique_ptr<FormWindow> make(Form& form, EventRunner& events, QWidget* parent) {
    return std::make_unique<Window>(static_cast<F&>(form), events, parent);
}

const std::map<std::string, Maker>& makers() {
    static const std::map<std::string, Maker> rows{
        {frmAboutMap::form_name, make<frmAboutMap, frmAboutMap_window>},
        {frmAboutTolvaneII::form_name, make<frmAboutTolvaneII, frmAboutTolvaneII_window>},
        {frmDisplay::form_name, make<frmDisplay, frmDisplay_window>},
        {frmEnterCoord::form_name, make<frmEnterCoord, frmEnterCoord_window>},
        {frmMapLegend::form_name, make<frmMapLegend, frmMapLegend_window>},
        {frmSaveSelect::form_name, make<frmSaveSelect, frmSaveSelect_window>},
        {frmStart::form_name, make<frmStart, frmStart_window>},
    };
    return rows;
}

} // namespace

std::unique_ptr<FormWindow> make_form_window(Form& form, EventRunner& events, QWidget* parent) {
    return makers().at(form.name)(form, events, parent);
}
