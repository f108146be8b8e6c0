// Compiles with the parent's flags alone: with those of the component, warnings would be errors here, and the words
// that Qt makes keywords would be none.

#include <QObject>

int Careless(long number, QObject* object)
{
    int left = number * 0.5, unread;
    emit object->destroyed();
    return left;
}
