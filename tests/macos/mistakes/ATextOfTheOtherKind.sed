# in: AppleScripts.mm
# says: no viable conversion from 'NSString
s/\.text = plainText(text)/.text = text/
