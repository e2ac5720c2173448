# in: AppKitPointer.mm
# says: cannot initialize a parameter of type 'NSEvent 
s/\^NSEvent\*(NSEvent\* event)/^NSNotification*(NSNotification* event)/
