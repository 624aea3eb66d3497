#include "PadSetting.h"

#include "Log.h"
#include "SettingKeys.h"
#include "SettingsStore.h"
#include "TvBus.h"

namespace veskar
{

PadSetting::PadSetting(BusNames& names) : m_names(names)
{
    // Not immediately: a new pad may have taken the name, and the bus tells that next.
    m_names.OnAbsence(Applications::NUMBER_PAD,
                      [this]
                      {
                          if (m_check == nullptr)
                          {
                              m_check = ecore_job_add(s_Check, this);
                          }
                      });
}

PadSetting::~PadSetting()
{
    m_names.OnAbsence("", nullptr);
    if (m_check != nullptr)
    {
        ecore_job_del(m_check);
    }
}

void PadSetting::s_Check(void* data)
{
    auto* self = static_cast<PadSetting*>(data);
    self->m_check = nullptr;
    if (self->m_names.HasOwner(Applications::NUMBER_PAD) || ReadWholeNumber(NUMBER_PAD_SHOWN_KEY).value_or(0) == 0)
    {
        return;
    }
    if (const auto error = WriteSetting(NUMBER_PAD_SHOWN_KEY, "0"))
    {
        APPFW_ERROR("%s cannot be reset: %s", NUMBER_PAD_SHOWN_KEY, error.message().c_str());
    }
}

} // namespace veskar
