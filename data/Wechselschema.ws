
#Eine Spur nach oben
123456P
