/** Callbacks of the toolkit as values: each calls a method of its owner and is taken back together with it. */
#pragma once

#include <Elementary.h>

namespace veskar
{

template <class Method>
struct OwnerOf;

template <class Result, class Owner, class... Arguments>
struct OwnerOf<Result (Owner::*)(Arguments...)>
{
    using Type = Owner;
};

template <auto Method>
auto* Owner(void* data)
{
    return static_cast<typename OwnerOf<decltype(Method)>::Type*>(data);
}

/** A smart callback for a method that takes the event's info, a void*. */
template <auto Method>
void CallSmart(void* data, Evas_Object* /*object*/, void* info)
{
    (Owner<Method>(data)->*Method)(info);
}

/** A canvas object's callback for a method without arguments. */
template <auto Method>
void CallEvent(void* data, Evas* /*canvas*/, Evas_Object* /*object*/, void* /*info*/)
{
    (Owner<Method>(data)->*Method)();
}

/** A main loop's task for a method without arguments. */
template <auto Method>
Eina_Bool CallTask(void* data)
{
    (Owner<Method>(data)->*Method)();
    return ECORE_CALLBACK_RENEW;
}

/** `object` outlives it, and `owner` has the method. */
class SmartCallback
{
public:
    SmartCallback(Evas_Object* object, const char* event, Evas_Smart_Cb function, void* owner)
        : m_object(object), m_event(event), m_function(function), m_owner(owner)
    {
        evas_object_smart_callback_add(m_object, m_event, m_function, m_owner);
    }
    ~SmartCallback() { evas_object_smart_callback_del_full(m_object, m_event, m_function, m_owner); }

    SmartCallback(const SmartCallback&) = delete;
    SmartCallback& operator=(const SmartCallback&) = delete;

private:
    Evas_Object* m_object;
    const char* m_event;
    Evas_Smart_Cb m_function;
    void* m_owner;
};

/** The same for an event of the canvas. */
class EventCallback
{
public:
    EventCallback(Evas_Object* object, Evas_Callback_Type event, Evas_Object_Event_Cb function, void* owner)
        : m_object(object), m_event(event), m_function(function), m_owner(owner)
    {
        evas_object_event_callback_add(m_object, m_event, m_function, m_owner);
    }
    ~EventCallback() { evas_object_event_callback_del_full(m_object, m_event, m_function, m_owner); }

    EventCallback(const EventCallback&) = delete;
    EventCallback& operator=(const EventCallback&) = delete;

private:
    Evas_Object* m_object;
    Evas_Callback_Type m_event;
    Evas_Object_Event_Cb m_function;
    void* m_owner;
};

/**
 * Calls its owner each time that the main loop has nothing left to do, before it draws. Construct first what is to be
 * called last: they run in reverse order of construction.
 */
class IdleEnterer
{
public:
    IdleEnterer(Ecore_Task_Cb function, void* owner) : m_handle(ecore_idle_enterer_add(function, owner)) {}
    ~IdleEnterer() { ecore_idle_enterer_del(m_handle); }

    IdleEnterer(const IdleEnterer&) = delete;
    IdleEnterer& operator=(const IdleEnterer&) = delete;

private:
    Ecore_Idle_Enterer* m_handle;
};

/** Constructs a T that is deleted together with `object`. */
template <class T, class... Arguments>
void LiveWith(Evas_Object* object, Arguments... arguments)
{
    const auto destroy = [](void* owned, Evas*, Evas_Object*, void*)
    {
        delete static_cast<T*>(owned);
    };
    evas_object_event_callback_add(object, EVAS_CALLBACK_DEL, destroy, new T(arguments...));
}

} // namespace veskar
