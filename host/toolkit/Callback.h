/** Callbacks of toolkit objects as values: each is taken back when its owner goes. */
#pragma once

#include <Elementary.h>

namespace veskar
{

/** A smart callback that calls a method of its owner: `SmartCallback focused = {list, "focused", Call<&T::OnX>(this)}`.
 */
class SmartCallback
{
public:
    struct Target
    {
        Evas_Smart_Cb function;
        void* owner;
    };

    /** `Method` takes the event's info, a void*. */
    template <auto Method, class Owner>
    static Target Call(Owner* owner)
    {
        const auto function = [](void* data, Evas_Object*, void* info)
        {
            (static_cast<Owner*>(data)->*Method)(info);
        };
        return {function, owner};
    }

    /** `object` outlives this. */
    SmartCallback(Evas_Object* object, const char* event, Target target)
        : m_object(object), m_event(event), m_target(target)
    {
        evas_object_smart_callback_add(m_object, m_event, m_target.function, m_target.owner);
    }
    ~SmartCallback() { evas_object_smart_callback_del_full(m_object, m_event, m_target.function, m_target.owner); }

    SmartCallback(const SmartCallback&) = delete;
    SmartCallback& operator=(const SmartCallback&) = delete;

private:
    Evas_Object* m_object;
    const char* m_event;
    Target m_target;
};

/** The same for the events of a canvas object; the method takes nothing. */
class ObjectCallback
{
public:
    struct Target
    {
        Evas_Object_Event_Cb function;
        void* owner;
    };

    template <auto Method, class Owner>
    static Target Call(Owner* owner)
    {
        const auto function = [](void* data, Evas*, Evas_Object*, void*)
        {
            (static_cast<Owner*>(data)->*Method)();
        };
        return {function, owner};
    }

    /** `object` outlives this. */
    ObjectCallback(Evas_Object* object, Evas_Callback_Type event, Target target)
        : m_object(object), m_event(event), m_target(target)
    {
        evas_object_event_callback_add(m_object, m_event, m_target.function, m_target.owner);
    }
    ~ObjectCallback() { evas_object_event_callback_del_full(m_object, m_event, m_target.function, m_target.owner); }

    ObjectCallback(const ObjectCallback&) = delete;
    ObjectCallback& operator=(const ObjectCallback&) = delete;

private:
    Evas_Object* m_object;
    Evas_Callback_Type m_event;
    Target m_target;
};

/** A new T that lives as long as `object` does; its constructor's arguments follow. */
template <class T, class... Arguments>
void LiveWith(Evas_Object* object, Arguments... arguments)
{
    const auto destroy = [](void* owned, Evas*, Evas_Object*, void*)
    {
        delete static_cast<T*>(owned);
    };
    evas_object_event_callback_add(object, EVAS_CALLBACK_DEL, destroy, new T(arguments...));
}

/** Called each time that the main loop has nothing left to do, before it draws. Of two the later one is called first.
 */
class IdleEnterer
{
public:
    struct Target
    {
        Ecore_Task_Cb function;
        void* owner;
    };

    template <auto Method, class Owner>
    static Target Call(Owner* owner)
    {
        const auto function = [](void* data) -> Eina_Bool
        {
            (static_cast<Owner*>(data)->*Method)();
            return ECORE_CALLBACK_RENEW;
        };
        return {function, owner};
    }

    explicit IdleEnterer(Target target) : m_handle(ecore_idle_enterer_add(target.function, target.owner)) {}
    ~IdleEnterer() { ecore_idle_enterer_del(m_handle); }

    IdleEnterer(const IdleEnterer&) = delete;
    IdleEnterer& operator=(const IdleEnterer&) = delete;

private:
    Ecore_Idle_Enterer* m_handle;
};

} // namespace veskar
